#include "EditorFixture.h"

#include "editor/StationInfoModel.h"
#include "support/KXFileLog.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

using Rows = QList<qsizetype>;

namespace {

/// Cable stations A, B, C and so on, each with identifiers of its own: A has "1-10-101".
std::vector<Item> identified(const QList<int> &numbers)
{
    std::vector<Item> items = lettered(numbers);
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i].push_back({u"original_network_id"_s, u"1"_s});
        items[i].push_back({u"transport_id"_s, u"10"_s});
        items[i].push_back({u"service_id"_s, QString::number(101 + i)});
    }
    return items;
}

} // namespace

/// Every change to stations but moving them by dialog and by drag.
class EditingTest : public QObject
{
    Q_OBJECT

private slots:
    void cells_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<int>("row");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("after"); // skipped ones with "s", locked ones with "b"
        QTest::addColumn<bool>("isDirty");
        const auto row = [](const char *column, int at, const QVariant &value, const char *after,
                            bool isDirty = true) {
            QTest::addRow("%s %d %s", column, at, qPrintable(value.toString()))
                << QString::fromLatin1(column) << at << value << QString::fromLatin1(after)
                << isDirty;
        };
        const char *const asBefore = "1 A, 2 B, 3 C s";
        row("progNum", 1, u"2"_s, asBefore, false);
        row("progNum", 1, u" +2x"_s, asBefore, false);
        row("progNum", 0, u"12000"_s, "2 B, 3 C s, 9999 A");
        row("progNum", 2, u"0"_s, "1 C s, 2 A, 3 B");
        row("progNum", 1, u"two"_s, "1 B, 2 A, 3 C s");
        row("skipped", 0, true, "1 A s, 2 B, 3 C s");
        row("skipped", 2, false, "1 A, 2 B, 3 C");
        row("blocked", 2, true, "1 A, 2 B, 3 C sb");
        row("visible", 0, u"HD"_s, asBefore, false);
        row("other", 0, u"7"_s, asBefore, false);
        row("progNum", 3, u"7"_s, asBefore, false);
    }
    void cells()
    {
        QFETCH(const QString, column);
        QFETCH(const int, row);
        QFETCH(const QVariant, value);
        std::vector<Item> items = lettered({1, 2, 3});
        items[2].push_back({u"isSkipped"_s, u"1"_s});
        Editor editor(items);
        const int updates = editor.outlets.updates;
        editor.controller.setObjectValue(value, column, row);
        QTEST(editor.rows(), "after");
        QTEST(editor.document.isDirty(), "isDirty");
        QCOMPARE(editor.outlets.updates > updates, editor.document.isDirty());
    }

    /// The table keeps showing the new name, and both are found, until the file is read again.
    void renames()
    {
        Editor editor(lettered({1, 2}, FileSource::Analogue));
        const QModelIndex cell = editor.model.index(1, 1);
        QCOMPARE(cell.data().toString(), u"B"_s);
        QVERIFY(editor.model.setData(cell, u"Ü & <1>"_s, Qt::EditRole));
        QVERIFY(editor.document.isDirty());
        const LGStation &station = *editor.controller.currentList()[1];
        QCOMPARE(*station.entry().string(u"vchName"), u"Ü & <1>"_s);
        editor.outlets.selectRows({1});
        editor.controller.skipSelectedItems();
        QCOMPARE(editor.rows(), u"1 A, 2 Ü & <1> s"_s);
        QCOMPARE(cell.data(Qt::EditRole).toString(), u"Ü & <1>"_s);
        QCOMPARE(station.stationName(), u"B"_s); // what is matched and logged
        StationInfo info;
        info.setStation(station);
        QCOMPARE(info.title(), u"Ü & <1>"_s);
        for (const QString &text : {u"ü"_s, u"b"_s, u"&"_s}) {
            editor.search(text);
            QCOMPARE(editor.rows(), u"2 Ü & <1> s"_s);
        }
    }

    /// The first selected one's new state goes for all.
    void toggles()
    {
        std::vector<Item> items = lettered({1, 2, 3, 4});
        for (const std::size_t set : {2U, 3U})
            items[set].push_back({u"isSkipped"_s, u"1"_s});
        Editor editor(items);
        editor.controller.skipSelectedItems(); // nothing is selected
        QVERIFY(!editor.document.isDirty());
        editor.outlets.selectRows({1, 2, 3});
        editor.controller.skipSelectedItems();
        QCOMPARE(editor.rows(), u"1 A, 2 B s, 3 C s, 4 D s"_s);
        QVERIFY(editor.document.isDirty());
        editor.controller.changeChildLockForSelectedItems();
        editor.controller.skipSelectedItems();
        QCOMPARE(editor.rows(), u"1 A, 2 B b, 3 C b, 4 D b"_s);
        QCOMPARE(editor.outlets.rows, (Rows{1, 2, 3}));
    }

    void appliesOrder_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("after"); // empty: nothing changes
        const QByteArray lines = "7;x;1-10-103\r\n9;b;0-0-0\r\n8;x;1-10-101\r\n";
        const QString applied = u"7 C, 9 B, 8 A"_s;
        const QByteArray list = fileOf(identified({4, 3, 8})); // B, A, C
        const QString asInList = u"3 B, 4 A, 8 C"_s;
        const QByteArray one = fileOf([] { // its longest TV list is the antenna's
            std::vector<Item> items = identified({5, 6});
            items[0][1].second = items[1][1].second = u"1"_s;
            items.push_back(makeStation(1, u"Cable"_s));
            items.push_back(makeRadio(1, u"Radio"_s));
            return items;
        }());
        const auto row = [](const char *name, const QByteArray &bytes, const QString &after = {}) {
            QTest::newRow(name) << QString::fromLatin1(name) << bytes << after;
        };
        row("order.txt", lines, applied);
        row("other.order.Txt", lines, applied);
        row("other.TLL", list, asInList);
        row("antenna.tll", one, u"5 A, 6 B, 7 C"_s);
        row("order.csv", lines);
        row("txt", lines);
        row("two.txt", lines.first(lines.lastIndexOf("8;")));
        row("text.tll", lines);
        row("malformed.tll", "<TLLDATA><CHANNEL><DTV>text</DTV></CHANNEL></TLLDATA>");
        row("identifiers.tll", fileOf(lettered({3, 2, 1})));
        row("json.tll", "<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[" +
                            makeChannel("A", "1") + "]}</legacybroadcast></CHANNEL></TLLDATA>");
        row("missing.tll", {});
    }
    void appliesOrder()
    {
        QFETCH(const QString, fileName);
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, after);
        const QTemporaryDir folder;
        const QString path = folder.filePath(fileName);
        if (!bytes.isEmpty())
            writeFile(path, bytes);
        Editor editor(identified({1, 2, 3}));
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C"_s); // which decodes the names
        editor.outlets.selectRows({1});
        const bool isApplied = !after.isEmpty();
        const bool isOther = !fileName.contains(u'.') || fileName.endsWith(u"csv"_s);
        if (!isOther)                             // of which nothing is said
            editor.prompts.answerAlert(u"kOK"_s); // of the report, or of the reason
        editor.controller.ordering().applyFile(path);
        QCOMPARE(editor.prompts.lastText().startsWith(u"kOrderEmpty"_s), !isApplied && !isOther);
        QCOMPARE(editor.rows(), isApplied ? after : u"1 A, 2 B, 3 C"_s);
        QCOMPARE(editor.document.isDirty(), isApplied);
        QCOMPARE(editor.outlets.rows, isApplied ? Rows{} : Rows{1});
        QCOMPARE(editor.controller.selection().isEmpty(), isApplied);
        QVERIFY(editor.prompts.isSettled());
    }

    void logsHowStationsWereFound()
    {
        std::vector<Item> items = identified({1, 2, 3, 4, 5, 6});
        items[2].back().second = u"102"_s; // as B, in another transport stream
        items[2][5].second = u"11"_s;
        items[4].back().second = u"104"_s; // as D in everything
        items[5][3].second = u"50%d"_s;
        Editor editor(items);
        QCOMPARE(editor.rows().count(u','), 5); // which decodes the names
        QFile file(KXFileLog::sharedLogWithName(u"XT"_s)->pathToLogFile());
        QVERIFY(file.open(QIODevice::ReadOnly) && file.seek(file.size()));
        const auto entry = [](const QString &name, const QString &ids) {
            return ReferenceEntry{u"1"_s, name, ids};
        };
        editor.prompts.answerAlert(u"kOK"_s);
        editor.document.applyOrderFromRefList(
            {entry({}, u"0-0-101"_s), entry({}, u"0-11-102"_s), entry({}, u"1-10-104"_s),
             entry(u"none"_s, u"0-0-0"_s), entry(u"50%D"_s, u"0-0-0"_s)},
            u"%1"_s);
        const QString text = QString::fromUtf8(file.readAll());
        qsizetype at = 0;
        for (
            const QString &line :
            {u"\n========= Begin applying external sort order (5 items) to 6 stations =========\n"_s,
             u": +++ Found Elem (A) by serviceID\n"_s,
             u": +++2 Found Elem (C) by serviceID/TransportID\n"_s,
             u": +++3 Found Elem (D) by serviceID/TransportID/originalNetworkID\n"_s,
             u": --- Found Elem (50%d) by name\n"_s, u"\n========= List of matched stations:\n"_s,
             u": ========= List of remaining items:\n"_s}) {
            at = text.indexOf(line, at);
            QVERIFY2(at >= 0, qPrintable(line + text));
        }
        QCOMPARE(text.count(u"Found Elem"_s), 4);
    }

    void info()
    {
        LGStation station({{u"vchName"_s, u"Name"_s},
                           {u"empty"_s, QString()},
                           {u"Upper"_s, Value(true)},
                           {u"_x"_s, Value(100000.0)},
                           {u"\uFF21"_s, QString(2000, u'x')}, // above surrogates as a unit
                           {u"\U0001F4FA"_s, u"tv"_s},
                           {u"nested"_s, Dictionary{{u"A"_s, Value(qint64(1))}}}},
                          0);
        StationInfo info;
        info.setStation(station);
        station.setStationName(u"New"_s); // does not show in what was opened before
        QCOMPARE(info.title(), u"Name"_s);
        StationInfoModel cells(info);
        const QAbstractItemModelTester tester(&cells);
        QStringList lines;
        for (int row = 0; row < cells.rowCount(); ++row) {
            const QModelIndex content = cells.index(row, StationInfoModel::Content);
            lines.append(cells.index(row, StationInfoModel::Field).data().toString() + u'=' +
                         content.data().toString());
            QCOMPARE(content.data(Qt::ToolTipRole), content.data()); // a long one is cut off
            QCOMPARE_LE(content.data().toString().size(), 1001);
            QCOMPARE(content.data(Qt::EditRole).toString(), info.content(row));
            QVERIFY(!cells.setData(content, u"x"_s, Qt::EditRole));
        }
        QCOMPARE(lines, (QStringList{u"Upper=true"_s, u"_x=100000.0"_s, u"empty="_s,
                                     u"nested=<NSDictionary>:\n    <A> = <NSNumber> 1"_s,
                                     u"vchName=Name"_s, u"\uFF21="_s + QString(1000, u'x') + u'…',
                                     u"\U0001F4FA=tv"_s}));
    }
};

QUILLET_TEST(EditingTest)

#include "EditingTest.moc"
