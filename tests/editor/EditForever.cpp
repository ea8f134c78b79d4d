// Edits a list at random and has it kept as the program does, until it is killed. Takes the folder
// of recovery, the list, a log and, in milliseconds, the longest pause between two edits and how
// soon they are kept: when idle, and at the latest.
//
// A line of the log is "time state bytes": a moment in milliseconds, a digest of the list as it is
// from then on and, where that is about to be saved, one of the bytes that may be written.

#include "KilledEditing.h"

#include "document/repair/RepairedWriter.h"
#include "editor/ListEditor.h"
#include "files/FileOperations.h"
#include "framework/RecoveryKeeper.h"

#include <QApplication>
#include <QFile>
#include <QRandomGenerator>
#include <QTimer>
#include <QUrl>

#include <cstdio>

using namespace quillet;
using namespace quillet::testing;

namespace {

QRandomGenerator random = QRandomGenerator::securelySeeded();

int below(int limit)
{
    return random.bounded(limit);
}

/// Told before anything can be kept of it.
void tell(QFile &log, const TLLDocument &document, const QByteArray &saved = {})
{
    log.write(QByteArray::number(now()) + ' ' + digestOf(document.list()) + ' ' + digestOf(saved) +
              '\n');
}

void save(TLLDocument &document, QFile &log)
{
    Error error;
    tell(log, document, document.dataOfType(TLLDocument::typeName(), error));
    tell(log, document, repairedTLL(document.list()));
    document.saveDocument();
}

void edit(TLLDocument &document, ListEditor &editor, QFile &log)
{
    document.switchToMode(below(4) > 0);
    document.switchToSource(below(stationSourceCount));
    if (!document.hasData())
        return;
    const int count = static_cast<int>(document.stationCount());
    const StationPtr station = (*document.stations())[static_cast<std::size_t>(below(count))];
    switch (below(18)) {
    case 0:
        return save(document, log);
    case 1:
    case 2:
        editor.closeGaps();
        break;
    case 3:
    case 4:
        document.history().undo();
        break;
    case 5:
    case 6:
        editor.applyOrder(
            {{QString::number(below(9)), station->stationName(), QStringLiteral("x-x-x")}}, {});
        break;
    case 7:
    case 8:
        editor.setFlag({station}, StationFlag::Skipped, !station->isSkipped());
        break;
    case 9:
    case 10:
    case 11:
        editor.rename(station, QString::number(below(100'000)));
        break;
    default:
        static_cast<void>(
            editor.move(editor.planMove({station}, 1 + below(2 * count), below(2) == 0)));
    }
    tell(log, document);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const auto milliseconds = [&](int i) {
        return std::chrono::milliseconds(arguments[i].toInt());
    };
    FileOperations operations;
    RecoveryStore store(arguments[1], operations);
    RecoveryKeeper keeper(store, {.idle = milliseconds(5), .most = milliseconds(6)});
    QFile log(arguments[3]);
    TLLDocument document;
    Error error;
    std::vector<RecoveryStore::Leftover> leftovers = store.leftovers();
    const bool isNew = leftovers.empty();
    if (!log.open(QIODevice::Append | QIODevice::Unbuffered) ||
        !(isNew ? document.readFromUrl(QUrl::fromLocalFile(arguments[2]), TLLDocument::typeName(),
                                       error)
                : RecoveryKeeper::restore(document, leftovers.front(), error)))
        return 1;
    if (isNew) {
        keeper.watch(document);
    } else {
        document.setDirtyFlag(true);
        keeper.goOn(document, std::move(leftovers.front()));
    }
    tell(log, document, isNew ? document.list().text.bytes() : QByteArray());
    std::puts("ready");
    std::fflush(stdout);

    ListEditor editor;
    editor.setDocument(&document);
    QTimer turns;
    turns.callOnTimeout([&] {
        edit(document, editor, log);
        turns.start(below(arguments[4].toInt()));
    });
    turns.start(0);
    return QApplication::exec();
}
