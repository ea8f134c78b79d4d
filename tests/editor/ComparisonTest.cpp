#include "EditorFixture.h"

#include "document/read/ListReading.h"
#include "editor/ComparisonModel.h"
#include "editor/ComparisonTexts.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"
#include "texts/TakeOverTexts.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <tuple>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

using Purpose = ComparedWith::Purpose;

Item with(Item item, const QString &key, const QString &value)
{
    const auto is = [&key](const auto &field) { return field.first == key; };
    if (const auto found = std::find_if(item.begin(), item.end(), is); found != item.end())
        found->second = value;
    else
        item.push_back({key, value});
    return item;
}

/// A station with identifiers of its own.
Item identified(int number, const QString &name, int service, FileSource source = FileSource::Cable)
{
    return with(with(with(makeStation(number, name, source), u"original_network_id"_s, u"1"_s),
                     u"transport_id"_s, u"10"_s),
                u"service_id"_s, QString::number(service));
}

StationLists listsOf(const std::vector<Item> &stations)
{
    return channelListFromBytes(fileOf(stations))->lists;
}

/// The comparison of an editor's document, with the table that shows it.
struct Compared
{
    Compared(Editor &editor, const ComparedWith &other)
        : comparison(std::make_shared<StationComparison>(editor.controller, other))
    {
    }
    Compared(Editor &editor, const std::vector<Item> &other)
        : Compared(editor, {.name = u"other"_s, .lists = listsOf(other)})
    {
    }

    std::shared_ptr<StationComparison> comparison;
    ComparisonModel model{*comparison};
    QAbstractItemModelTester tester{&model};

    /// The rows as "+ 1>2 A", with "+" for a check, "-" for none and " " for none to set.
    [[nodiscard]] QString rows() const
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto text = [this, row](int column) {
                return model.index(row, column).data().toString();
            };
            const QVariant check =
                model.index(row, ComparisonModel::Check).data(Qt::CheckStateRole);
            const QString here = text(ComparisonModel::NameHere);
            const QString there = text(ComparisonModel::NameThere);
            texts.append((!check.isValid()                               ? u" "_s
                          : check.value<Qt::CheckState>() == Qt::Checked ? u"+"_s
                                                                         : u"-"_s) +
                         text(ComparisonModel::NumberHere) + u'>' +
                         text(ComparisonModel::NumberThere) + u' ' +
                         (here == there ? here : here + u'/' + there));
        }
        return texts.join(u", "_s);
    }
    [[nodiscard]] QString difference(int row) const
    {
        return model.index(row, ComparisonModel::Difference).data().toString();
    }
};

} // namespace

/// What is shown of two lists, and what is taken over from there.
class ComparisonTest : public QObject
{
    Q_OBJECT

private slots:
    void rowsTellWhatDiffers()
    {
        const Item flagged = with(identified(4, u"Flags"_s, 4), u"isSkipped"_s, u"1"_s);
        Editor editor({identified(1, u"Same"_s, 1), identified(2, u"Moved"_s, 2), flagged,
                       identified(5, u"Here"_s, 5), identified(6, u"Far HD"_s, 6),
                       identified(8, u"Name"_s, 8), identified(10, u"Mute"_s, 10),
                       makeRadio(1, u"Radio"_s)});
        const Compared compared(editor,
                                {identified(1, u"Same"_s, 1), identified(3, u"Moved"_s, 2),
                                 identified(4, u"Flags"_s, 4), identified(7, u"farhd"_s, 60),
                                 identified(8, u"Other"_s, 8), identified(9, u"There"_s, 9),
                                 with(identified(0, u"Mute"_s, 10), u"prNum"_s, u"x"_s),
                                 makeRadio(2, u"Radio"_s)});
        StationComparison &comparison = *compared.comparison;
        // A digital station cannot be renamed, so there is nothing to check.
        QCOMPARE(compared.rows(), u"+2>3 Moved, +4>4 Flags,  5> Here/, -6>7 Far HD/farhd, "
                                  " 8>8 Name/Other,  >9 /There, +1>2 Radio"_s);
        QCOMPARE(compared.difference(0), u"kRowMoved"_s);
        QCOMPARE(compared.difference(1), u"kRowSkippedHere"_s);
        QVERIFY(compared.difference(3).startsWith(u"kRowLoose"_s));
        QCOMPARE(comparison.count(ComparisonKind::Moved), std::size_t{3});
        QCOMPARE(comparison.count(ComparisonKind::Same), std::size_t{2});
        QVERIFY(comparison.isSameOrder());
        QVERIFY(editor.document.lists().list(false, 0)->front()->name().isEmpty());
        QVERIFY(!comparison.reasonAgainst(StationDifference::Name).isEmpty());
        QVERIFY(!comparison.reasonAgainst(StationDifference::Locked).isEmpty());
        QVERIFY(comparison.reasonAgainst(StationDifference::Number).isEmpty());

        comparison.showList(StationComparison::List{false, 0});
        QCOMPARE(compared.rows(), u"+1>2 Radio"_s);
        QCOMPARE(comparison.count(ComparisonKind::Moved), std::size_t{1});
        comparison.showList({});
        comparison.showKinds(ComparisonKind::Same);
        QCOMPARE(compared.rows(), u" 1>1 Same,  10> Mute"_s);
        comparison.showKinds({ComparisonKind::OnlyHere, ComparisonKind::OnlyThere});
        comparison.search(u"HER"_s);
        QCOMPARE(compared.rows(), u" 5> Here/,  >9 /There"_s);
    }

    void checkedRowsAreTakenOver()
    {
        Editor editor({identified(1, u"A"_s, 1), identified(2, u"B"_s, 2), identified(3, u"C"_s, 3),
                       makeStation(1, u"X"_s, FileSource::Analogue)});
        const Compared compared(editor, {with(identified(2, u"A"_s, 1), u"isBlocked"_s, u"1"_s),
                                         identified(1, u"B"_s, 2), identified(4, u"C"_s, 3),
                                         makeStation(5, u"X"_s, FileSource::Analogue)});
        StationComparison &comparison = *compared.comparison;
        const QString before = editor.list(0);
        QCOMPARE(compared.rows(), u"+1>2 A, +2>1 B, +3>4 C, +1>5 X"_s);
        comparison.toggle({2, 3});
        QCOMPARE(compared.rows(), u"+1>2 A, +2>1 B, -3>4 C, -1>5 X"_s);
        comparison.takeOver({0, 2}); // of which one is checked; it takes the number of another
        QCOMPARE(editor.list(0), u"2 A, 3 C, 4 B"_s);
        QVERIFY(editor.outlets.told.contains(u"kToldTakenOver, kToldOthersToTheEnd"_s));
        QTRY_COMPARE(compared.rows(), u"-3>4 C, +4>1 B, -1>5 X"_s);
        editor.controller.undoing().undo();
        QCOMPARE(editor.list(0), before);

        QTRY_COMPARE(compared.rows(), u"+1>2 A, +2>1 B, -3>4 C, -1>5 X"_s);
        comparison.take(StationDifference::Locked, false);
        comparison.takeOverAll();
        QCOMPARE(editor.rows(), u"1 B, 2 A, 3 C"_s);
        QVERIFY(editor.outlets.told.contains(u"kToldTakenOver"_s));
        comparison.take(StationDifference::Locked, true);
        comparison.toggle({2, 3});
        QTRY_COMPARE(compared.rows(), u"+2>2 A, +3>4 C, +1>5 X"_s);
        comparison.takeOverAll();
        QTRY_VERIFY(comparison.isEmpty());
        QCOMPARE(editor.rows(), u"1 B, 2 A b, 4 C"_s);
        QCOMPARE(editor.list(3), u"5 X"_s);
        QCOMPARE(textOf(comparison.planForAll()), u"kPreviewNothing"_s);
        const Compared strangers(editor, {identified(1, u"Z"_s, 99)});
        QCOMPARE(previewOf(*strangers.comparison), u"kPreviewNoneInCommon"_s);
        QVERIFY(editor.prompts.isSettled());
    }

    /// A question stays open although the window that asked for it is closed.
    void numbersThatAreTooHighAreAskedAbout()
    {
        Editor editor({identified(1, u"A"_s, 1), identified(16383, u"B"_s, 2)});
        const QString before = editor.rows();
        {
            const Compared compared(editor, {identified(16383, u"A"_s, 1)});
            compared.comparison->takeOverAll();
        }
        QCOMPARE(editor.rows(), before);
        editor.prompts.answerAlert(u"kBeyondAnyway"_s);
        QVERIFY(editor.rows() != before);
        QVERIFY(editor.prompts.isSettled());
    }

    void followsAFileThatIsReadAnew()
    {
        Editor editor({identified(1, u"A"_s, 1), makeRadio(1, u"R"_s)});
        const Compared compared(editor, {identified(2, u"A"_s, 1)});
        compared.comparison->showList(StationComparison::List{false, 0});
        editor.show(fileOf({identified(2, u"A"_s, 1), identified(3, u"N"_s, 3)}));
        QTRY_COMPARE(compared.rows(), u" 3> N/"_s);
        QVERIFY(!compared.comparison->reveal({}));
        QVERIFY(compared.comparison->reveal({0}));
        QCOMPARE(editor.outlets.rows, QList<qsizetype>{1});

        // A check of what is not sure was meant for that very station.
        const Compared unsure(editor, {identified(9, u"n"_s, 9)});
        unsure.comparison->showKinds(ComparisonKind::Moved);
        unsure.comparison->toggle({0});
        QCOMPARE(unsure.rows(), u"+3>9 N/n"_s);
        editor.show(fileOf({identified(4, u"N"_s, 4)}));
        QTRY_COMPARE(unsure.rows(), u"-4>9 N/n"_s);
        QCOMPARE(unsure.comparison->uncheckedUnsure(), std::size_t{1});
    }

    /// Also where several have one number, as channels that are kept as JSON may.
    void earlierChannelsComeBack()
    {
        QRandomGenerator random(1);
        for (int round = 0; round < 30; ++round) {
            QByteArrayList channels;
            for (int i = 1; i <= 12; ++i)
                channels.append(makeChannel(
                    "c" + QByteArray::number(i), QByteArray::number(1 + random.bounded(8)),
                    {.more = ",\"ONID\":1,\"TSID\":10,\"SVCID\":" + QByteArray::number(i)}));
            Editor editor({});
            editor.show("<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[" +
                        channels.join(',') + "]}</legacybroadcast></CHANNEL></TLLDATA>");
            const auto numbers = [&editor] {
                QStringList rows = editor.list(0).split(u", "_s);
                rows.sort();
                return rows;
            };
            const QStringList before = numbers();
            QCOMPARE(before.size(), 12);
            std::optional<ComparedWith> read;
            connect(&editor.controller, &ViewController::comparisonWanted, this,
                    [&read](const ComparedWith &other) { read.emplace(other); });
            editor.controller.comparing().compareWithRead();
            const Compared compared(editor, *read);
            QVERIFY(compared.comparison->isEmpty() && compared.comparison->isSameOrder());
            QVERIFY(compared.comparison->planForAll().empty());
            ReferenceList order;
            for (int i = 0; i < 5; ++i)
                order.push_back({QString::number(1 + random.bounded(9)),
                                 u"c%1"_s.arg(1 + random.bounded(12)), u"x"_s});
            editor.prompts.answerAlert(u"kOK"_s);
            editor.controller.ordering().apply(order, {});
            const bool isEdited = numbers() != before;
            QTRY_COMPARE(compared.comparison->planForAll().empty(), !isEdited);
            compared.comparison->takeOverAll();
            QCOMPARE(numbers(), before);
        }
    }

    /// Rows of another program may tell only what is to be changed, and their order.
    void rowsAreImported()
    {
        Editor editor({identified(1, u"A"_s, 1), identified(2, u"B"_s, 2), identified(7, u"C"_s, 3),
                       identified(9, u"D"_s, 4)});
        ComparedWith rows{.purpose = Purpose::Import,
                          .name = u"rows.csv"_s,
                          .lists = listsOf({identified(1, u"C"_s, 3), identified(2, u"None"_s, 50),
                                            with(identified(3, u"A"_s, 1), u"isSkipped"_s, u"1"_s),
                                            identified(4, u"B"_s, 2)}),
                          .rule = NumberRule::ByRows};
        for (const StationPtr &station : *rows.lists.list(true, 0))
            rows.told.insert(station.get(), StationDifference::Number);
        const Compared compared(editor, rows);
        QCOMPARE(compared.rows(), u"+1>2 A/, +2>7 B/, +7>1 C/,  >2 /n1-t10-s50"_s);
        QCOMPARE(compared.difference(3), u"kRowFitsNothing"_s);
        compared.comparison->toggle({2});
        QCOMPARE(compared.rows(), u"+1>1 A/, +2>2 B/, -7>1 C/,  >2 /n1-t10-s50"_s);
        compared.comparison->toggle({2});
        compared.comparison->takeOverAll();
        QCOMPARE(editor.rows(), u"1 C, 2 A, 7 B, 9 D"_s);
        QVERIFY(editor.outlets.told.contains(u"kToldImported"_s));
    }

    /// Those that may be wrong are seen first, and counted.
    void doubtsStandFirstInAPaste()
    {
        Editor editor({identified(1, u"A"_s, 1), identified(2, u"B"_s, 2), makeRadio(1, u"R"_s)});
        ComparedWith rows{.purpose = Purpose::Paste,
                          .name = {},
                          .lists = listsOf({identified(1, u"B"_s, 2), identified(2, u"None"_s, 77),
                                            identified(3, u"a"_s, 76)}),
                          .place = editor.document.stations()->back()};
        // A line of a reference list, of which nothing but the identifiers is read.
        rows.told.insert((*rows.lists.list(true, 0))[1].get(), {});
        const Compared compared(editor, rows);
        QCOMPARE(compared.rows(), u"-1>3 A/a,  >2 /1-10-77, +2>1 B"_s);
        QCOMPARE(previewOf(*compared.comparison), u"kPreviewPaste kPreviewUnfit kPreviewUnsure"_s);
    }

    /// Whatever the entries: doubled, unknown, with numbers that are none.
    void orderIsWhatItsPreviewSaid_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 0; seed < 20; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void orderIsWhatItsPreviewSaid()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        std::vector<Item> stations;
        for (int i = 1; i <= 12; ++i)
            stations.push_back(
                identified(i, QString(QChar(u'A' + random.bounded(6))), random.bounded(15)));
        Editor editor(stations);
        ComparedWith order{.purpose = Purpose::Order, .name = u"order"_s, .lists = {}};
        for (int i = 0; i < 10; ++i)
            order.entries.push_back({QString::number(random.bounded(20)),
                                     QString(QChar(u'A' + random.bounded(8))),
                                     u"1-10-%1"_s.arg(random.bounded(20))});
        for (int i = 0; i < 12; i += 1 + random.bounded(3)) // the others are found by none
            std::ignore = (*editor.document.stations())[static_cast<std::size_t>(i)]->stationName();
        const Compared compared(editor, order);
        StationComparison &comparison = *compared.comparison;
        QVERIFY(comparison.isStillSo());
        comparison.showKinds(
            {ComparisonKind::Moved, ComparisonKind::Same, ComparisonKind::OnlyHere});
        QCOMPARE(comparison.rowCount(), std::size_t{12});
        QStringList expected;
        for (int row = 0; row < compared.model.rowCount(); ++row)
            expected.append(
                compared.model.index(row, ComparisonModel::NumberThere).data().toString() + u' ' +
                compared.model.index(row, ComparisonModel::NameHere).data().toString());
        editor.prompts.answerAlert(u"kOK"_s);
        comparison.applyOrder();
        QStringList stand;
        for (const StationPtr &station : *editor.document.stations())
            stand.append(QString::number(station->getRawProgNum()) + u' ' + station->shownName());
        QCOMPARE(stand, expected);
    }

    void listsToCompareWithAreFound()
    {
        const QTemporaryDir folder;
        Editor editor({identified(1, u"A"_s, 1), with(makeStation(1, u"X"_s, FileSource::Analogue),
                                                      u"frequency"_s, u"100"_s)});
        std::vector<ComparedWith> wanted;
        connect(&editor.controller, &ViewController::comparisonWanted, this,
                [&wanted](const ComparedWith &other) { wanted.push_back(other); });
        CompareCommands &commands = editor.controller.comparing();
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray("<TLLDATA/>"), fileOf({identified(2, u"A"_s, 1)})}) {
            const QString path = folder.filePath(u"%1.tll"_s.arg(bytes.size()));
            writeFile(path, bytes);
            editor.prompts.answerOpenPanel({path});
            if (wanted.empty() && bytes.size() < 20)
                editor.prompts.answerAlert(u"kOK"_s);
            commands.askForFile();
        }
        editor.prompts.answerAlert(u"kOK"_s);
        commands.compareWithFile(folder.filePath(u"missing.tll"_s));
        QCOMPARE(editor.prompts.alerts().size(), std::size_t{3});
        QCOMPARE(wanted.size(), std::size_t{1});

        // What is typed here is no name as a file has it.
        editor.clickSegment(3);
        editor.controller.setObjectValue(u"Ã©"_s, u"progName"_s, 0);
        QVERIFY(commands.reasonAgainstRead().isEmpty());
        commands.compareWithRead();
        commands.compareWithDocument(editor.document);
        QCOMPARE(wanted.size(), std::size_t{3});
        QCOMPARE(Compared(editor, wanted[1]).rows(), u"+1>1 Ã©/X"_s);
        QVERIFY(StationComparison(editor.controller, wanted[2]).isEmpty());
        QCOMPARE(wanted[2].name, u"kCompareNameWindow"_s); // which tells the time
        QVERIFY(editor.prompts.isSettled());
    }

    /// The panel's other button leads there, and nothing is applied.
    void orderIsPreviewed()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"order.txt"_s);
        writeFile(path, "5;A;1-10-1\r\n6;B;1-10-2\r\n7;C;1-10-3\r\n");
        Editor editor({identified(1, u"A"_s, 1)});
        QSignalSpy wanted(&editor.controller, &ViewController::comparisonWanted);
        editor.prompts.answerOpenPanelOther(path);
        editor.controller.ordering().askForFile();
        QTRY_COMPARE(wanted.size(), 1);
        QCOMPARE(editor.rows(), u"1 A"_s);
        editor.prompts.answerAlert(u"kOK"_s);
        editor.controller.ordering().previewFile(folder.filePath(u"order.csv"_s));
        QVERIFY(editor.prompts.lastText().contains(u"kOrderWrongType"_s));
        QCOMPARE(wanted.size(), 1);
        QVERIFY(editor.prompts.isSettled());

        // What is read of the names meanwhile is seen before anything is applied.
        const Compared order(editor, {.purpose = Purpose::Order,
                                      .name = {},
                                      .lists = {},
                                      .entries = {{u"5"_s, u"A"_s, u"x"_s}}});
        QVERIFY(order.comparison->isStillSo());
        editor.document.stations()->front()->setName(u"B"_s);
        QVERIFY(!order.comparison->isStillSo());
        QCOMPARE(order.rows(), u" 1>1 B/,  >5 /A"_s);
    }
};

QUILLET_TEST(ComparisonTest)

#include "ComparisonTest.moc"
