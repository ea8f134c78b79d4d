#include "document/order/ReferenceOrder.h"
#include "document/read/ListReading.h"
#include "document/review/Rehearsal.h"
#include "document/write/TLLWriter.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "texts/FindingTexts.h"
#include "texts/RehearsalTexts.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <algorithm>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

/// A channel list is opened, ordered and written by a program that has no window.
class CoreOnlyTest : public QObject
{
    Q_OBJECT

private slots:
    void opensOrdersAndWrites()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"list.tll"_s);
        QVERIFY(QFile::copy(QStringLiteral(QUILLET_SAMPLES "/cable.tll"), path));
        QByteArray bytes;
        Error error;
        QVERIFY2(readFile(QUrl::fromLocalFile(path), bytes, error), qPrintable(error.text()));
        const std::optional<ChannelList> list = channelListFromBytes(bytes);
        QVERIFY(list);

        const StationListPtr &stations = list->lists.listWithMostEntries(true);
        ReferenceList order = referenceListFromStations(*stations);
        QVERIFY(order.size() > 1 && order.size() == stations->size());
        std::reverse(order.begin(), order.end());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i].num = QString::number(i + 1);
        QCOMPARE(applyReferenceOrder(*stations, order).matched, order.size());

        const QByteArray written = writeTLL(*list, {});
        QCOMPARE(findingTexts(*list) + textsOf(rehearse(*list, written)), QStringList());
        FileOperations operations;
        FileReplacement replacement(operations);
        QVERIFY2(replacement.replace(path, written, error), qPrintable(error.text()));
        QVERIFY(readFile(QUrl::fromLocalFile(path), bytes, error));
        const std::optional<ChannelList> again = channelListFromBytes(bytes);
        QVERIFY(again);
        const StationListPtr &found = again->lists.listWithMostEntries(true);
        QCOMPARE(found->size(), order.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            QCOMPARE(found->at(i)->stationName(), order[i].name);
    }

    void loadsNoWindowLibrary()
    {
        QFile maps(u"/proc/self/maps"_s);
        if (!maps.open(QIODevice::ReadOnly))
            QSKIP("this system does not tell which libraries a program has loaded");
        const QByteArray loaded = maps.readAll();
        QVERIFY(loaded.contains("libQt6Core"));
        QVERIFY(!loaded.contains("libQt6Gui") && !loaded.contains("libQt6Widgets"));
    }
};

QTEST_GUILESS_MAIN(CoreOnlyTest)

#include "CoreOnlyTest.moc"
