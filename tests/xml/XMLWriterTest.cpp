#include "TreeText.h"

#include "testing/TestMain.h"
#include "xml/XMLWriter.h"

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

class XMLWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void escapes()
    {
        QCOMPARE(XMLEncodedString(u"a<b & \"c\""_s), u"a&lt;b &amp; &quot;c&quot;"_s);
        QCOMPARE(XMLEncodedString(u"&amp;'>Ä\t\n"_s), u"&amp;amp;&apos;&gt;Ä\t\n"_s);
    }

    void elements_data()
    {
        QTest::addColumn<Value>("node");
        QTest::addColumn<QString>("xml"); // under the name "n"
        const auto row = [](const char *name, const Value &node, const QString &xml) {
            QTest::newRow(name) << node << xml;
        };
        row("text", u"<5>"_s, u"<n>&lt;5&gt;</n>"_s);
        row("empty text", u""_s, u"<n></n>"_s);
        row("number", Value(qint64(-5)), u"<n>-5</n>"_s);
        row("text of a node", Dictionary{{u"__text"_s, u"5"_s}}, u"<n>5</n>"_s);
        row("empty node", Dictionary(), u"<n/>"_s);
        row("attribute", Dictionary{{u"_id"_s, u"7"_s}}, u"<n id=\"7\"/>"_s);
        row("attributes escaped, in order",
            Dictionary{{u"_b"_s, u"\"&\""_s}, {u"_a"_s, Value(qint64(1))}, {u"__text"_s, u"t"_s}},
            u"<n b=\"&quot;&amp;&quot;\" a=\"1\">t</n>"_s);
        row("attributes in a dictionary",
            Dictionary{{u"__attributes"_s, Dictionary{{u"x"_s, u"%1"_s}}}, {u"_y"_s, u"2"_s}},
            u"<n x=\"%1\"/>"_s);
        row("array", Array{u"1"_s, Dictionary(), u"2"_s}, u"<n>1</n>\n<n/>\n<n>2</n>"_s);
        row("empty array", Array(), QString());
        row("empty array as only child", Dictionary{{u"a"_s, Array()}}, u"<n/>"_s);
        row("comments first, text last",
            Dictionary{{u"__text"_s, Array{u"one"_s, u"two"_s}},
                       {u"b"_s, Array{u"1"_s, u"2"_s}},
                       {u"__comments"_s, Array{u"c & d"_s, u"e"_s}},
                       {u"a"_s, Dictionary{{u"_x"_s, u"1"_s}}}},
            u"<n><!--c &amp; d-->\n<!--e-->\n<b>1</b>\n<b>2</b>\n<a x=\"1\"/>\none\ntwo</n>"_s);
    }
    void elements()
    {
        QFETCH(const Value, node);
        QTEST(XMLStringForNode(node, u"n"_s), "xml");
    }

    void wholeDocuments()
    {
        const std::pair<QString, Value> child{u"a"_s, u"1"_s}, name{u"__name"_s, u"top"_s};
        QCOMPARE(XMLString({child}), u"<a>1</a>"_s); // a dictionary that wraps its root
        QCOMPARE(XMLString({name}), u"<top/>"_s);
        QCOMPARE(XMLString({name, child}), u"<top><a>1</a></top>"_s);
        QCOMPARE(XMLString({child, {u"b"_s, u"2"_s}}), u"<root><a>1</a>\n<b>2</b></root>"_s);
        QCOMPARE(XMLString({}), u"<root/>"_s);
    }
};

QUILLET_TEST(XMLWriterTest)

#include "XMLWriterTest.moc"
