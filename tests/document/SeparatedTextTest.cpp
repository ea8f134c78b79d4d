#include "document/text/SeparatedText.h"

#include "document/text/TextBytes.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

using Kind = TextFault::Kind;

/// "a|b" a row, the rows apart by "/".
QString textOf(const std::vector<SeparatedRow> &rows)
{
    QStringList texts;
    for (const SeparatedRow &row : rows) {
        QStringList cells;
        for (const SeparatedCell &cell : row)
            cells.append(cell.text);
        texts.append(cells.join(u'|'));
    }
    return texts.join(u'/');
}

} // namespace

/// Tables as text of spreadsheets, and the bytes of it.
class SeparatedTextTest : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("rows");
        QTest::addRow("line ends") << u"a,b\rc,d\n\ne,f\r\n"_s << u"a|b/c|d/e|f"_s;
        QTest::addRow("quotes") << u"\"a\"\"\r\n;\";b\" c \r\nd ; \"e\"\r\n"_s
                                << u"a\"\r\n;|b\" c /d | \"e\""_s;
        QTest::addRow("blanks behind a quote") << u"\"a\"  \t\"b\" \n"_s << u"a|b"_s;
        QTest::addRow("empty cells") << u";;\na;;"_s << u"||/a||"_s;
        QTest::addRow("named separator") << u"SEP=|\r\na,b|c\r\n"_s << u"a,b|c"_s;
        QTest::addRow("commas of numbers") << u"Nr;f\n1;4,5\n2;4,6\n"_s << u"Nr|f/1|4,5/2|4,6"_s;
        QTest::addRow("semicolons in names")
            << u"Nr,n,x\n1,a;b,\n2,c,\n"_s << u"Nr|n|x/1|a;b|/2|c|"_s;
        QTest::addRow("one column") << u"a\nb c\n"_s << u"a/b c"_s;
        QTest::addRow("nothing") << u""_s << u""_s;
    }
    void reads()
    {
        QFETCH(const QString, text);
        TextFault fault;
        const std::optional<SeparatedTable> table = readSeparatedText(text, fault);
        QVERIFY(table);
        QTEST(textOf(table->rows), "rows");
    }

    void saysWhereItIsNone_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addRow("open quote")
            << u"a;b\r\n\"x\ny\";\"c\r\nd;e\r\n"_s << Kind::UnclosedQuote << 3 << 4;
        QTest::addRow("text behind") << u"a;b\rc;\"d\"e\r"_s << Kind::TextBehindQuote << 2 << 6;
        QTest::addRow("zero") << u"sep=;\na;b"_s + QChar(0) << Kind::ZeroCharacter << 2 << 4;
        QTest::addRow("endless row")
            << u"a;b\n"_s + QString(5'000'000, u';') << Kind::TooLarge << 2 << 1'001;
        QTest::addRow("endless rows")
            << u"a;b\n"_s.repeated(200'000) << Kind::TooLarge << 150'001 << 1;
    }
    void saysWhereItIsNone()
    {
        QFETCH(const QString, text);
        TextFault fault;
        QVERIFY(!readSeparatedText(text, fault));
        QTEST(fault.kind, "kind");
        QTEST(static_cast<int>(fault.line), "line");
        QTEST(static_cast<int>(fault.column), "column");
    }

    /// What was written is read again, cell by cell, in whatever bytes it went.
    void goesThereAndBack()
    {
        QRandomGenerator random(1);
        constexpr QStringView letters = u"ab1 ;,\t\"\r\n=\u00E4\u20AC\u00B4";
        for (int round = 0; round < 2000; ++round) {
            const QChar separator = u";,\t"[random.bounded(3)];
            const auto form = static_cast<TextForm>(random.bounded(4));
            SeparatedText written(separator);
            std::vector<SeparatedRow> rows;
            const int columns = random.bounded(1, 4);
            for (int i = random.bounded(1, 6); i > 0; --i) {
                QStringList cells;
                SeparatedRow &row = rows.emplace_back();
                for (int j = 0; j < columns; ++j) {
                    QString cell;
                    for (int k = random.bounded(5); k > 0; --k)
                        cell += letters[random.bounded(letters.size())];
                    cells.append(cell);
                    row.push_back({cell});
                }
                written.addRow(cells);
            }
            const EncodedText bytes = encoded(written.text(), form);
            QCOMPARE(bytes.lost, 0);
            TextFault fault;
            const auto read = readSeparatedText(decoded(bytes.bytes), fault, separator);
            QVERIFY2(read, qPrintable(written.text()));
            QCOMPARE(textOf(read->rows), textOf(rows));
        }
    }

    void findsTheBytesForm_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addRow("UTF-16 without a mark") << QByteArray("a\0;\0\xE4\0", 6) << u"a;ä"_s;
        QTest::addRow("the other order") << QByteArray("\0a\0;\x20\xAC", 6) << u"a;€"_s;
        QTest::addRow("UTF-8") << QByteArray("a\xC3\xA4") << u"aä"_s;
        QTest::addRow("Windows") << QByteArray("a\xE4\x80") << u"aä€"_s;
        QTest::addRow("a mark and no letter") << QByteArray("\xEF\xBB\xBF\xE4;a") << u"\uFFFD;a"_s;
    }
    void findsTheBytesForm()
    {
        QFETCH(const QByteArray, bytes);
        QTEST(decoded(bytes), "text");
    }

    void countsWhatBytesCannotHold()
    {
        const QString text = u"a\u0141\U0001F4FA\u20AC"_s + QChar(0xD800);
        QCOMPARE(encoded(text, TextForm::Windows1252).bytes, "a??\x80?");
        QCOMPARE(encoded(text, TextForm::Windows1252).lost, 3);
        QCOMPARE(encoded(text, TextForm::Utf8).lost, 1);
    }
};

QUILLET_TEST(SeparatedTextTest)

#include "SeparatedTextTest.moc"
