#include "EditorFixture.h"

#include "editor/StationInfo.h"
#include "editor/StationTableModel.h"
#include "support/KXFileLog.h"
#include "testing/TestMain.h"

#include <QDir>
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
        row("progNum", 0, u"99999999999999999999"_s, "2 B, 3 C s, 9999 A");
        row("progNum", 0, 3, "2 B, 3 A, 4 C s");
        row("progNum", 2, u"0"_s, "1 C s, 2 A, 3 B");
        row("progNum", 1, u"-5"_s, "1 B, 2 A, 3 C s");
        row("progNum", 1, u"-99999999999999999999"_s, "1 B, 2 A, 3 C s");
        row("progNum", 1, u"two"_s, "1 B, 2 A, 3 C s");
        row("progNum", 1, u"  "_s, "1 B, 2 A, 3 C s");
        row("progNum", 2, QVariant(), "1 C s, 2 A, 3 B");
        row("skipped", 0, true, "1 A s, 2 B, 3 C s");
        row("skipped", 2, false, "1 A, 2 B, 3 C");
        row("blocked", 2, true, "1 A, 2 B, 3 C sb");
        row("visible", 0, u"HD"_s, asBefore, false);
        row("other", 0, u"7"_s, asBefore, false);
        row("progNum", 3, u"7"_s, asBefore, false);
        row("skipped", -1, true, asBefore, false);
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
        QTEST(marked(editor), "after");
        QTEST(editor.document.isDirty(), "isDirty");
        QCOMPARE(editor.outlets.updates > updates, editor.document.isDirty());
    }

    void typedName()
    {
        Editor editor(lettered({1, 2}, FileSource::Analogue));
        QVERIFY(editor.outlets.nameIsEditable);
        StationTableModel model(editor.controller);
        editor.outlets.reloaded = [&model] { model.reload(); };
        model.reload();
        const QModelIndex cell = model.index(1, 1);
        QCOMPARE(cell.data().toString(), u"B"_s);
        QVERIFY(model.setData(cell, u"Ü & <1>"_s, Qt::EditRole));
        QVERIFY(editor.document.isDirty());
        const LGStation &station = *editor.controller.currentList()[1];
        QCOMPARE(cell.data().toString(), u"Ü & <1>"_s);
        QCOMPARE(cell.data(Qt::EditRole).toString(), u"Ü & <1>"_s);
        QCOMPARE(*station.entry().string(u"vchName"), u"Ü & <1>"_s);
        QVERIFY(station.getXMLItem().contains(u"<vchName>Ü & <1></vchName>"_s));
        StationInfo info;
        info.setStation(station);
        QCOMPARE(info.content(info.fields().indexOf(u"vchName"_s)), u"Ü & <1>"_s);
        QCOMPARE(info.title(), u"Ü & <1>"_s);
        editor.outlets.reloadData();
        QCOMPARE(cell.data().toString(), u"Ü & <1>"_s);
        QCOMPARE(*station.entry().string(u"vchName"), u"Ü & <1>"_s);
    }

    void toggles_data()
    {
        QTest::addColumn<bool>("locks");
        QTest::newRow("skip") << false;
        QTest::newRow("child lock") << true;
    }
    void toggles()
    {
        QFETCH(const bool, locks);
        std::vector<Item> items = lettered({1, 2, 3, 4});
        for (const std::size_t set : {2, 3})
            items[set].push_back({locks ? u"isBlocked"_s : u"isSkipped"_s, u"1"_s});
        Editor editor(items);
        const auto toggle = [&editor, locks] {
            if (locks)
                editor.controller.changeChildLockForSelectedItems();
            else
                editor.controller.skipSelectedItems();
            return marked(editor).remove(locks ? u'b' : u's');
        };
        const QString before = marked(editor);
        int updates = editor.outlets.updates;
        toggle();
        QCOMPARE(marked(editor), before);
        QVERIFY(!editor.document.isDirty() && editor.outlets.updates == updates);

        // The first one's new state goes for all.
        const QString mark = locks ? u" b"_s : u" s"_s;
        editor.outlets.selectRows({1, 2, 3});
        toggle();
        QCOMPARE(marked(editor), u"1 A, 2 B%1, 3 C%1, 4 D%1"_s.arg(mark));
        QVERIFY(editor.document.isDirty() && editor.outlets.updates == ++updates);
        toggle();
        QCOMPARE(marked(editor), u"1 A, 2 B, 3 C, 4 D"_s);
        QCOMPARE(editor.outlets.rows, (Rows{1, 2, 3}));
        editor.outlets.selectRows({0});
        toggle();
        QCOMPARE(marked(editor), u"1 A%1, 2 B, 3 C, 4 D"_s.arg(mark));
        // Written as "1" and "0".
        const LGStation &first = *editor.controller.currentList()[0];
        const LGStation &second = *editor.controller.currentList()[1];
        const QString key = locks ? u"isBlocked"_s : u"isSkipped"_s;
        QCOMPARE(*first.entry().string(key) + *second.entry().string(key), u"10"_s);
    }

    void enabling()
    {
        using Control = EditorOutlets::Control;
        const auto enabled = [](const Editor &editor) {
            QString text;
            const std::pair<Control, QChar> controls[] = {{Control::MoveToButton, u'm'},
                                                          {Control::InfoButton, u'i'},
                                                          {Control::ModeButtons, u't'},
                                                          {Control::ApplyButton, u'a'}};
            for (const auto &[control, letter] : controls)
                text += editor.outlets.enabled[control] ? letter : u'-';
            for (const QString &command : {u"typeFilterClicked"_s, u"skipSelectedItems"_s,
                                           u"changeChildLockForSelectedItems"_s, u"saveDocument"_s})
                text += editor.controller.validateUserInterfaceItem(command) ? u'+' : u'-';
            return text + (editor.outlets.hint == EmptyHint::None ? u' ' : u'?');
        };
        Editor empty({}), editor(lettered({1, 2}));
        QCOMPARE(enabled(empty), u"----+---?"_s);
        QCOMPARE(enabled(editor), u"--ta+--- "_s);
        editor.outlets.selectRows({1});
        QCOMPARE(enabled(editor), u"mita+++- "_s);
        QCOMPARE(editor.controller.stationForInfo(), editor.controller.currentList()[1]);
        editor.outlets.selectRows({});
        QCOMPARE(enabled(editor), u"--ta+--- "_s);
        QVERIFY(!editor.controller.stationForInfo());
        editor.outlets.selectRows({0});
        editor.controller.useRadioClicked(); // has no stations
        QCOMPARE(enabled(editor), u"----+---?"_s);
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
        row("order.TXT", lines, applied);
        row("other.order.Txt", lines, applied);
        row("other.tll", list, asInList);
        row("other.TLL", list, asInList);
        row("antenna.tll", one, u"5 A, 6 B, 7 C"_s);
        row("order.csv", lines);
        row("order", lines);
        row("txt", lines);
        row("order.txt.bak", lines);
        row("two.txt", lines.first(lines.lastIndexOf("8;")));
        row("empty.txt", {});
        row("line.txt", QByteArray(20'000'000, 'x'));
        row("fields.txt", QByteArray(20'000'000, ';'));
        row("list.txt", list);
        row("empty.tll", {});
        row("text.tll", lines);
        row("malformed.tll", "<TLLDATA><CHANNEL><DTV>text</DTV></CHANNEL></TLLDATA>");
        row("identifiers.tll", fileOf(lettered({3, 2, 1})));
        row("random.tll", QByteArray("\xFF\x00\xD8<ITEM>", 9).repeated(1000));
        QTest::newRow("folder") << u"folder.txt"_s << QByteArray("a folder") << QString();
        QTest::newRow("missing") << u"missing.tll"_s << QByteArray("missing") << QString();
    }
    void appliesOrder()
    {
        QFETCH(const QString, fileName);
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, after);
        const QTemporaryDir folder;
        const QString path = folder.filePath(fileName);
        if (bytes == "a folder")
            QVERIFY(QDir().mkpath(path));
        else if (bytes != "missing")
            write(path, bytes);
        Editor editor(identified({1, 2, 3}));
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C"_s); // which decodes the names
        editor.outlets.selectRows({1});
        const int updates = editor.outlets.updates;
        const bool isApplied = !after.isEmpty();
        if (isApplied)
            editor.prompts.answerAlert(u"kOK"_s);
        editor.controller.applyOrderFile(path);
        QCOMPARE(editor.rows(), isApplied ? after : u"1 A, 2 B, 3 C"_s);
        QCOMPARE(editor.document.isDirty(), isApplied);
        QCOMPARE(editor.outlets.rows, isApplied ? Rows{} : Rows{1});
        QCOMPARE(editor.controller.selection().isEmpty(), isApplied);
        QCOMPARE(editor.outlets.updates > updates, isApplied);
        QVERIFY(editor.prompts.isSettled());
    }

    void appliesItsOwnFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"list.tll"_s);
        const QByteArray bytes = fileOf(identified({1, 2, 3}));
        write(path, bytes);
        Editor editor(identified({1, 2, 3}));
        editor.document.setFileUrl(QUrl::fromLocalFile(path));
        editor.controller.moveElements(2, 1, 1);
        QCOMPARE(editor.rows(), u"1 C, 2 A, 3 B"_s);
        editor.prompts.answerAlert(u"kOK"_s);
        editor.controller.applyOrderFile(path);
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
        QVERIFY(editor.document.isDirty());
    }

    void asksForTheOrder()
    {
        const QTemporaryDir folder;
        write(folder.filePath(u"order.txt"_s), "3;x;1-10-101\n2;x;1-10-102\n1;x;1-10-103");
        Editor editor(identified({1, 2, 3}));
        editor.prompts.answerOpenPanel({});
        editor.controller.applyOrderClicked();
        QVERIFY(editor.prompts.isSettled());
        editor.prompts.answerOpenPanel({folder.filePath(u"order.txt"_s)});
        editor.prompts.answerAlert(u"kOK"_s);
        editor.controller.applyOrderClicked();
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C"_s); // not while the panel is there
        QTRY_COMPARE(editor.rows(), u"3 A, 2 B, 1 C"_s);
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
        QCOMPARE(editor.rows().count(u','), 5);
        const KXFileLog *log = KXFileLog::sharedLogWithName(u"XT"_s);
        QVERIFY(log);
        QFile file(log->pathToLogFile());
        const qint64 before = file.size();
        const auto entry = [](const QString &name, const QString &ids) {
            return ReferenceEntry{u"1"_s, name, ids};
        };
        editor.prompts.answerAlert(u"kOK"_s);
        editor.document.applyOrderFromRefList(
            {entry({}, u"0-0-101"_s), entry({}, u"0-11-102"_s), entry({}, u"1-10-104"_s),
             entry(u"none"_s, u"0-0-0"_s), entry(u"50%D"_s, u"0-0-0"_s)},
            u"%1"_s);
        QVERIFY(file.open(QIODevice::ReadOnly) && file.seek(before));
        QStringList lines;
        for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            if (line.contains(u"Found Elem"_s) || line.contains(u"==="_s))
                lines.append(line.section(u": "_s, line.contains(u": "_s) ? 1 : 0));
        }
        const QString marks(9, u'=');
        QCOMPARE(
            lines,
            (QStringList{
                marks + u" Begin applying external sort order (5 items) to 6 stations "_s + marks,
                u"+++ Found Elem (A) by serviceID"_s,
                u"+++2 Found Elem (C) by serviceID/TransportID"_s,
                u"+++3 Found Elem (D) by serviceID/TransportID/originalNetworkID"_s,
                u"--- Found Elem (50%d) by name"_s, marks + u" List of matched stations:"_s,
                marks + u" List of remaining items:"_s}));
    }

    void info()
    {
        LGStation station({{u"vchName"_s, u"Name"_s},
                           {u"prNum"_s, Value(qint64(5))},
                           {u"empty"_s, QString()},
                           {u"Upper"_s, Value(true)},
                           {u"_x"_s, Value(1.5)},
                           {u"ü"_s, Value()},
                           {u"nested"_s, Dictionary{{u"b"_s, Array{u"1"_s, u"2"_s}},
                                                    {u"A"_s, Value(qint64(1))}}}},
                          0);
        StationInfo info;
        QVERIFY(info.fields().isEmpty());
        info.setStation(station);
        station.setProgramNum(6);
        station.setStationName(u"New"_s);
        station.setSkipped(true);
        QCOMPARE(info.title(), u"Name"_s); // as it was when the station was set
        QCOMPARE(info.fields(), (QStringList{u"Upper"_s, u"_x"_s, u"empty"_s, u"nested"_s,
                                             u"prNum"_s, u"vchName"_s, u"ü"_s}));
        const QStringList contents{u"true"_s,
                                   u"1.5"_s,
                                   u""_s,
                                   u"<NSDictionary>:\n    <A> = <NSNumber> 1\n    <b> = <NSArray>\n"
                                   "        [0] = 1\n        [1] = 2"_s,
                                   u"5"_s,
                                   u"Name"_s};
        for (qsizetype i = 0; i < contents.size(); ++i)
            QCOMPARE(info.content(i), contents[i]);
    }

    void editsTheJSONVariant()
    {
        const QByteArray head = "<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[";
        const QByteArray tail = "]}</legacybroadcast></CHANNEL></TLLDATA>";
        const auto channel = [](const QByteArray &name, int number, const QByteArray &skipped,
                                const QByteArray &more = {}) {
            return "{\"channelName\":\"" + name +
                   "\",\"majorNumber\":" + QByteArray::number(number) + ",\"skipped\":" + skipped +
                   ",\"sourceIndex\":\"CABLE DIGITAL\",\"serviceType\":1" + more + "}";
        };
        Editor editor({});
        Error error;
        QVERIFY(editor.document.readFromData(head + channel("A", 1, "false") + ',' +
                                                 channel("B", 2, "true") + ',' +
                                                 channel("C", 3, "1") + tail,
                                             TLLDocument::typeName(), error));
        editor.controller.populateFromTLLDoc(editor.document, {});
        QCOMPARE(marked(editor), u"1 A, 2 B s, 3 C"_s); // only real booleans count
        editor.controller.setObjectValue(u"1"_s, u"progNum"_s, 2);
        editor.outlets.selectRows({0, 2});
        editor.controller.skipSelectedItems();
        editor.controller.setObjectValue(true, u"blocked"_s, 1);
        editor.controller.setObjectValue(false, u"skipped"_s, 2);
        QCOMPARE(marked(editor), u"1 C s, 2 A b, 3 B"_s);
        const QByteArray byUser = ",\"userEditChNumber\":1,\"userSelCHNo\":1";
        QCOMPARE(editor.document.dataOfType({}, error),
                 head + channel("C", 1, "true", byUser) + ',' +
                     channel("A", 2, "false", byUser + ",\"optrBlocked\":true") + ',' +
                     channel("B", 3, "false", byUser) + tail);
        editor.search(u"b"_s);
        QCOMPARE(editor.rows(), u"3 B"_s);
        editor.search({});
        editor.controller.useRadioClicked();
        QCOMPARE(editor.rows(), QString());
    }

private:
    /// The rows, with an "s" after a skipped station and a "b" after a locked one.
    static QString marked(const Editor &editor)
    {
        QStringList texts;
        for (const StationPtr &station : editor.controller.currentList()) {
            QString text = Editor::text({station});
            if (station->isSkipped() || station->isBlocked())
                text += u' ';
            texts.append(text + (station->isSkipped() ? u"s"_s : QString()) +
                         (station->isBlocked() ? u"b"_s : QString()));
        }
        return texts.join(u", "_s);
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no file could be made for the test");
    }
};

QUILLET_TEST(EditingTest)

#include "EditingTest.moc"
