#include "testing/PlainReading.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;

class PlainScannerTest : public QObject
{
    Q_OBJECT

private slots:
    void takesOnlyPlainTexts_data();
    void takesOnlyPlainTexts();
    void looksAtEveryPlaceOfABlock_data();
    void looksAtEveryPlaceOfABlock();
    void ownsWhatItNotes();
};

void PlainScannerTest::takesOnlyPlainTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isPlain");
    const auto row = [](const char *name, const QByteArray &text, bool isPlain) {
        QTest::newRow(name) << text << isPlain;
    };
    const auto inItem = [&row](const char *name, const QByteArray &content, bool isPlain) {
        row(name, "<a><i><n>1</n><m>x</m></i><i>" + content + "<m>y</m></i></a>", isPlain);
    };
    row("a list", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<a>\r\n<b>1</b>\r\n</a>\r\n",
        true);
    row("a byte-order mark", "\xEF\xBB\xBF<a><b>1</b></a>", true);
    row("attributes", "<a><b type=\"0\" n='\"'><c>1</c></b><b x=\"1\"/></a>", true);
    row("text beside elements", "<a>x<i><n>1</n></i>y&lt;<i><n>1</n></i>z</a>", true);
    row("a root without content", "<a/>", true);
    inItem("the same fields", "<n>2</n>", true);
    inItem("a field twice", "<n>2</n><n>3</n>", true);
    inItem("an empty field", "<n></n>", true);
    inItem("an empty field, then another", "<n/><n>2</n>", true);
    inItem("a field, then an empty one", "<n>2</n><n/>", true);
    inItem("other fields", "<o>2</o><_p>3</_p>", true);
    inItem("a name noted in the element", "<__name>m</__name>", true);
    inItem("references and line ends", "<n>\r\n &amp;&lt;\r\n&gt;&quot;&apos; </n>", true);
    inItem("blanks beyond ASCII", "<n>\xC2\xA0 2\xC2\xA0</n>", true);
    inItem("brackets", "<n>[[1]] ]&gt;</n>", true);
    inItem("a nested element", "<n><o>1</o></n>", true);
    inItem("attributes and a text", "<n t=\"0\" u='a b'>1</n><n t=\"0\">2</n><o t=\"0\">3</o>",
           true);
    inItem("attributes alone", "<n t=\"0\"></n><n t=\"1\"/><n t=\"2\"> </n>", true);
    inItem("attributes that trimming would change", "<n t=\" 0\">1</n><n t=\"\">2</n>", true);
    inItem("attributes with reserved names", "<n _text=\"0\">1</n><n _name=\"0\">2</n>", true);
    inItem("attributes beside elements", "<n t=\"0\"><o>1</o></n>", true);
    inItem("a slash for text", "<n>/></n>", true);
    inItem("a comment", "<!-- -->", false);
    inItem("a CDATA section", "<n><![CDATA[1]]></n>", false);
    inItem("a processing instruction", "<?p?>", false);
    inItem("a character reference", "<n>&#65;</n>", false);
    inItem("another entity", "<n>&nbsp;</n>", false);
    inItem("an open reference", "<n>&amp</n>", false);
    inItem("the end of a CDATA section", "<n>]]></n>", false);
    inItem("a lone CR", "<n>1\r2</n>", false);
    inItem("a control character", "<n>\x01</n>", false);
    inItem("no character", "<n>\xEF\xBF\xBF</n>", false);
    inItem("no UTF-8", "<n>\xE4</n>", false);
    inItem("a prefix", "<n:m>1</n:m>", false);
    inItem("a name beyond ASCII", "<\xC3\xA4>1</\xC3\xA4>", false);
    inItem("a tag that is not ended", "<n>1</n", false);
    inItem("the wrong end tag", "<n>1</o>", false);
    inItem("attributes alike", "<n a=\"1\" a=\"2\">1</n>", false);
    inItem("a tag in an attribute", "<n a=\"<\">1</n>", false);
    row("an instruction for names", "<a xmlns=\"b\"><b>1</b></a>", false);
    row("another encoding", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><a><b>1</b></a>", false);
    row("a document type", "<!DOCTYPE a><a><b>1</b></a>", false);
    row("nothing", {}, false);
    row("a text that breaks off", "<a><b>1</b>", false);
    row("a second root", "<a><b>1</b></a><a/>", false);
    row("text behind the root", "<a><b>1</b></a>x", false);
    row("a null", QByteArray("<a><b>1</b></a>\0", 16), false);
}

void PlainScannerTest::takesOnlyPlainTexts()
{
    QFETCH(const QByteArray, text);
    QFETCH(const bool, isPlain);
    QCOMPARE(scannedTree(text).has_value(), isPlain);
    QCOMPARE(faultOfScanning(text), nullptr);
}

void PlainScannerTest::looksAtEveryPlaceOfABlock_data()
{
    QTest::addColumn<QByteArray>("odd");
    QTest::addColumn<bool>("isPlain");
    QTest::newRow("CR LF") << QByteArray("\r\n") << true;
    QTest::newRow("a lone CR") << QByteArray("\r") << false;
    QTest::newRow("a control character") << QByteArray("\x1F") << false;
    QTest::newRow("a tab") << QByteArray("\t") << true;
    QTest::newRow("delete") << QByteArray("\x7F") << true;
    QTest::newRow("a reference") << QByteArray("&amp;") << true;
    QTest::newRow("a bracket") << QByteArray("]]>") << false;
}

void PlainScannerTest::looksAtEveryPlaceOfABlock()
{
    QFETCH(const QByteArray, odd);
    QFETCH(const bool, isPlain);
    for (int before = 0; before < 40; ++before) {
        const QByteArray text =
            "<a><i><n>x" + QByteArray(before, 'x') + odd + "\xC3\xA4</n></i></a>";
        QCOMPARE(scannedTree(text).has_value(), isPlain);
        QCOMPARE(faultOfScanning(text), nullptr);
    }
}

void PlainScannerTest::ownsWhatItNotes()
{
    QByteArray text = "<a><i><n>abc</n></i></a>";
    const std::optional<Dictionary> tree =
        scannedTree(QByteArray::fromRawData(text.constData(), text.size()));
    QVERIFY(tree);
    text.fill('z');
    QCOMPARE(*tree->dictionary(u"i")->string(u"n"), QStringLiteral("abc"));
}

QUILLET_TEST(PlainScannerTest)

#include "PlainScannerTest.moc"
