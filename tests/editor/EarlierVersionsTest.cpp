#include "EditorFixture.h"

#include "document/read/ListReading.h"
#include "editor/EarlierVersions.h"
#include "files/FileOperations.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

Item with(Item item, const QString &key, const QString &value)
{
    item.push_back({key, value});
    return item;
}

/// The entries of all lists, with the order of their fields, and the names shown.
QString contentOf(const ChannelList &list)
{
    QString text;
    for (int i = 0; i < 2 * stationSourceCount; ++i) {
        for (const StationPtr &station : *list.lists.list(i % 2 == 0, i / 2)) {
            for (const auto &[key, value] : station->entry())
                text += key + u'=' + value.description() + u';';
            text += station->shownName() + u'\n';
        }
    }
    return text;
}

} // namespace

/// What is told of the earlier versions of a file, and putting one back.
class EarlierVersionsTest : public QObject
{
    Q_OBJECT

private slots:
    void versionsAreComparedWithNow()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"list.tll"_s);
        FileOperations operations;
        VersionStore store(folder.filePath(u"store"_s), operations);
        Editor editor({});
        editor.document.setVersionStore(&store);
        editor.document.setFileUrl(QUrl::fromLocalFile(path));
        QVERIFY(!EarlierVersions::hasAny(editor.document));
        const QByteArray now = fileOf(lettered({1, 2, 3}));
        QDateTime time(QDate(2026, 3, 1), QTime(20, 15));
        Error error;
        for (const QByteArray &bytes :
             {fileOf(lettered({3, 2, 1})), fileOf(lettered({1, 2})), fileOf(lettered({1, 2, 3, 4})),
              QByteArray("<TLLDATA><CHANNEL><DTV>x</DTV>"), QByteArray("damaged"), now}) {
            writeFile(path, bytes);
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            time = time.addSecs(1);
            QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
            QVERIFY(store.keep(path, bytes, error));
        }
        const QByteArray damaged = store.versionsOf(path).at(1).digest;
        writeFile(folder.filePath(u"store/contents/"_s + QString::fromLatin1(damaged)), "other");
        editor.show(now);

        (void)EarlierVersions(editor.document); // gone before its thread
        const EarlierVersions versions(editor.document);
        const auto &rows = versions.rows();
        QCOMPARE(rows.size(), std::size_t{6});
        QVERIFY(rows.back().version.isFirst); // at once
        QTRY_VERIFY(std::none_of(rows.begin(), rows.end(), [](const auto &row) {
            return row.state == EarlierVersions::Row::State::Reading;
        }));
        QStringList told;
        QSet<QString> names;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            names += {versions.timeText(row), versions.suggestedPath(row)};
            told.append(
                QStringLiteral("%1 %2 %3 %4")
                    .arg(rows[row].stations)
                    .arg(versions.canBeOpened(row))
                    .arg(versions.differenceText(row), versions.reasonAgainstPuttingBack(row)));
        }
        QCOMPARE(names.size(), 2 * rows.size());
        QCOMPARE(
            told,
            (QStringList{u"3 1 kDiffSame kPutBackSame"_s, u"0 0 kVersionDamaged kVersionDamaged"_s,
                         u"0 0 kVersionNoList kVersionNoList"_s, u"4 1 kDiffMore kPutBackOthers"_s,
                         u"2 1 kDiffFewer kPutBackOthers"_s, u"3 1 kDiffNumbers "_s}));
    }

    /// In every list, with all that a station holds, as one step there and back.
    void versionIsPutBack_data()
    {
        QTest::addColumn<QByteArray>("then");
        QTest::addColumn<QByteArray>("now");
        const auto row = [](const char *name, const std::vector<Item> &then,
                            const std::vector<Item> &now) {
            QTest::newRow(name) << fileOf(then) << fileOf(now);
        };
        const auto id = [](const Item &item, const char *service) {
            return with(
                with(with(item, u"original_network_id"_s, u"1"_s), u"transport_id"_s, u"1"_s),
                u"service_id"_s, QString::fromLatin1(service));
        };
        const Item a = makeStation(1, u"A"_s), b = makeStation(2, u"B"_s);
        row("numbers", lettered({1, 2, 3}), lettered({3, 1, 7}));
        row("several lists",
            {a, makeRadio(1, u"R"_s), makeStation(4, u"C"_s, FileSource::Analogue)},
            {with(a, u"isSkipped"_s, u"1"_s), makeRadio(5, u"R"_s),
             makeStation(6, u"C"_s, FileSource::Analogue)});
        row("fields added, removed and in another order",
            {id(with(a, u"x"_s, u"1"_s), "7"), id(b, "8")},
            {with(id(a, "7"), u"x"_s, u"1"_s), with(id(b, "8"), u"y"_s, u"2"_s)});
        // Stored as bytes, which are read as "Да".
        row("a name that is decoded", {id(makeStation(1, u"Ð\u0094Ð°"_s), "7"), id(b, "8")},
            {id(a, "7"), id(makeStation(3, u"Ж"_s), "8")});
    }
    void versionIsPutBack()
    {
        QFETCH(QByteArray, then);
        QFETCH(QByteArray, now);
        Editor editor({});
        editor.show(now);
        const QString before = contentOf(editor.document.list());
        const auto expected = channelListFromBytes(then);
        const auto version = channelListFromBytes(then);
        QVERIFY(expected && version);
        QVERIFY(editor.controller.putBack(*version, u"yesterday"_s));
        const UndoHistory &history = editor.document.history();
        QCOMPARE(history.stack().count(), 1);
        QCOMPARE(contentOf(editor.document.list()), contentOf(*expected));
        QCOMPARE(editor.rows(), editor.list(0));
        editor.controller.undoing().undo();
        QCOMPARE(contentOf(editor.document.list()), before);
        QVERIFY(!editor.document.isDirty());
        editor.controller.undoing().redo();
        QCOMPARE(contentOf(editor.document.list()), contentOf(*expected));
    }

    /// What it did is shown, and stays what is on show while that has changed as well.
    void changedListIsShown()
    {
        const Item analogue = makeStation(1, u"X"_s, FileSource::Analogue);
        Editor editor({makeStation(1, u"A"_s), analogue});
        editor.clickSegment(3);
        const auto putBack = [&editor](const std::vector<Item> &stations) {
            const auto version = channelListFromBytes(fileOf(stations));
            QVERIFY(version && editor.controller.putBack(*version, {}));
        };
        putBack({makeStation(5, u"A"_s), makeStation(9, u"X"_s, FileSource::Analogue)});
        QCOMPARE(editor.rows(), u"9 X"_s);
        editor.controller.undoing().undo();
        QCOMPARE(editor.rows(), u"1 X"_s);
        putBack({makeStation(5, u"A"_s), analogue});
        QCOMPARE(editor.rows(), u"5 A"_s);
        editor.clickSegment(3);
        editor.controller.undoing().undo();
        QCOMPARE(editor.rows(), u"1 A"_s);
    }

    void otherStationsAreRefused()
    {
        Editor editor(lettered({1, 2}));
        Item likeB = makeStation(2, u"b"_s); // by its name alone
        likeB.push_back({u"service_id"_s, u"7"_s});
        for (const QByteArray &bytes :
             {fileOf(lettered({4, 5, 6})), fileOf(lettered({7})),
              fileOf({makeStation(1, u"A"_s), likeB}),
              QByteArray("<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[]}"
                         "</legacybroadcast></CHANNEL></TLLDATA>")}) {
            const auto version = channelListFromBytes(bytes);
            QVERIFY(version && !editor.controller.putBack(*version, {}));
        }
        QCOMPARE(editor.rows(), u"1 A, 2 B"_s);
        QVERIFY(!editor.document.isDirty());
    }
};

QUILLET_TEST(EarlierVersionsTest)

#include "EarlierVersionsTest.moc"
