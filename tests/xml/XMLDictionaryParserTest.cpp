#include "TreeText.h"

#include "testing/TestMain.h"
#include "xml/XMLDictionaryParser.h"

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

using Tree = Dictionary;
using Parser = XMLDictionaryParser;
using Settings = XMLDictionaryParser::Settings;

namespace {

const std::pair<QString, Value> root{u"__name"_s, u"r"_s};

Tree tree(const QString &key, const Value &value)
{
    return {{key, value}};
}

Tree text(const QString &run)
{
    return {{u"__text"_s, run}};
}

} // namespace

class XMLDictionaryParserTest : public QObject
{
    Q_OBJECT

private slots:
    /// Content of an element "r" and what becomes of it.
    void content_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<Tree>("expected");
        const auto row = [](const char *name, const QByteArray &xml, const Tree &content) {
            QTest::newRow(name) << xml << content;
        };
        // clang-format off
        row("text of the root", " t ", text(u"t"_s));
        row("stations", "<ATV><ITEM><n>1</n></ITEM><ITEM><n>2</n></ITEM></ATV><DTV><ITEM><n>3</n></ITEM></DTV>",
            {{u"ATV"_s, tree(u"ITEM"_s, Array{tree(u"n"_s, u"1"_s), tree(u"n"_s, u"2"_s)})},
             {u"DTV"_s, tree(u"ITEM"_s, tree(u"n"_s, u"3"_s))}});

        row("empty vanish", "<b/><b></b><b> \r\n\t</b><c><d/></c>", {});
        row("empty after full", "<b>1</b><b/>", {{u"b"_s, Array{u"1"_s}}});
        row("empty before full", "<b/><b>1</b>", {{u"b"_s, u"1"_s}});
        row("empty between", "<b>1</b><b/><b/><b>2</b><b/>", {{u"b"_s, Array{u"1"_s, u"2"_s}}});
        row("order of first occurrence", "<b>1</b><a>2</a><b>3</b>",
            {{u"b"_s, Array{u"1"_s, u"3"_s}}, {u"a"_s, u"2"_s}});

        row("inner blanks", "<a> x  y </a>", {{u"a"_s, u"x  y"_s}});
        row("two runs", "<a>one<c>2</c> two\n</a>",
            {{u"a"_s, Tree{{u"__text"_s, Array{u"one"_s, u"two"_s}}, {u"c"_s, u"2"_s}}}});
        row("three runs", "1<c/>2<c/> <c/>3", {{u"__text"_s, Array{u"1"_s, u"2"_s, u"3"_s}}});
        row("comment, instruction", "<a>ab<!--c-->cd<?e f?>gh</a>", {{u"a"_s, u"abcdgh"_s}});
        row("CDATA in a run", "<a>ab<![CDATA[<x>]]>cd</a>", {{u"a"_s, u"ab<x>cd"_s}});
        row("blank CDATA", "<a> <![CDATA[ x ]]>\n</a><b><![CDATA[  ]]></b>", {{u"a"_s, u"x"_s}});
        row("blank pieces", "<a> <!--c--> x&amp; <!--d--> y</a>", {{u"a"_s, u"x&  y"_s}});
        row("predefined entities", "<a>&lt;&gt;&amp;&quot;&apos;</a>", {{u"a"_s, u"<>&\"'"_s}});
        row("references", "<a>&#32;&#65;&#x20AC;&#x1F4FA;&#9;</a>", {{u"a"_s, u"A€\U0001F4FA"_s}});
        row("line ends become LF", "<a>1\r\n2\r3\n4</a>", {{u"a"_s, u"1\n2\n3\n4"_s}});

        row("attribute", "<a x='1'>t</a>", {{u"a"_s, Tree{{u"_x"_s, u"1"_s}, {u"__text"_s, u"t"_s}}}});
        row("empty attribute", "<a x=''/>", {{u"a"_s, tree(u"_x"_s, u""_s)}});
        row("attribute text", "<a x=' 1&#10;2&lt;\n'/>", {{u"a"_s, tree(u"_x"_s, u" 1\n2< "_s)}});
        row("no namespaces", "<p:a q:b='1' xmlns:p='u'/>",
            {{u"p:a"_s, Tree{{u"_q:b"_s, u"1"_s}, {u"_xmlns:p"_s, u"u"_s}}}});

        row("same name at three depths", "<r><r><r>1</r>t</r>u</r><r>2</r>",
            {{u"r"_s, Array{Tree{{u"r"_s, Tree{{u"r"_s, u"1"_s}, {u"__text"_s, u"t"_s}}},
                                 {u"__text"_s, u"u"_s}}, u"2"_s}}});
        row("names come back after a nested use", "1<a>2</a><b>3<a>4</a><c/>5</b><a>6</a>7",
            {{u"__text"_s, Array{u"1"_s, u"7"_s}}, {u"a"_s, Array{u"2"_s, u"6"_s}},
             {u"b"_s, Tree{{u"__text"_s, Array{u"3"_s, u"5"_s}}, {u"a"_s, u"4"_s}}}});
        row("fields in another order", "<i><x>1</x><y>2</y></i><i><y>3</y><x>4</x></i><i><x>5</x></i>",
            {{u"i"_s, Array{Tree{{u"x"_s, u"1"_s}, {u"y"_s, u"2"_s}},
                            Tree{{u"y"_s, u"3"_s}, {u"x"_s, u"4"_s}}, tree(u"x"_s, u"5"_s)}}});

        // Elements that are called like the tree's own keys.
        row("element __text", "t<__text>u</__text>", {{u"__text"_s, Array{u"t"_s, u"u"_s}}});
        row("element __comments", "<a><__comments>c</__comments></a>",
            {{u"a"_s, tree(u"__comments"_s, u"c"_s)}});
        row("element like an attribute", "<a><_x>1</_x></a>", {{u"a"_s, tree(u"_x"_s, u"1"_s)}});
        row("element __name for its parent", "<p><a><__name>a</__name></a><b>1</b></p>",
            {{u"p"_s, tree(u"b"_s, u"1"_s)}});
        row("element __name for another", "<b>1</b><a><__name>b</__name></a><c>2</c>",
            {{u"a"_s, tree(u"__name"_s, u"b"_s)}, {u"c"_s, u"2"_s}});
        row("removed name", "<x>1</x><a><x><__name>x</__name></x></a><x>2</x>",
            {{u"x"_s, Array{u"1"_s, u"2"_s}}});
        // clang-format on
    }

    void content()
    {
        QFETCH(const QByteArray, xml);
        QFETCH(Tree, expected);
        Parser parser;
        auto parsed = parser.dictionaryWithData("<r>" + xml + "</r>");
        QVERIFY(parsed && !parser.firstError());
        QCOMPARE(parsed->at(0).key, root.first);
        QCOMPARE(parsed->at(0).value, root.second);
        parsed->remove(root.first);
        QCOMPARE(*parsed, expected);
        for (qsizetype i = 0; i < expected.count(); ++i)
            QCOMPARE(parsed->at(i).key, expected.at(i).key);
    }

    void settings_data()
    {
        QTest::addColumn<Settings>("settings");
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<Tree>("expected");
        const auto row = [](const char *name, const Settings &settings, const QByteArray &xml,
                            const Tree &expected) {
            QTest::newRow(name) << settings << "<r>" + xml + "</r>" << expected;
        };
        using Attributes = Parser::AttributesMode;
        using Names = Parser::NodeNameMode;
        const Settings noCollapse{.collapseTextNodes = false}, wrap{.wrapRootNode = true};
        // clang-format off
        row("always arrays", {.alwaysUseArrays = true}, "<a>1</a><b/><c><d>2</d></c>",
            {root, {u"a"_s, Array{u"1"_s}}, {u"b"_s, Array()}, {u"c"_s, Array{tree(u"d"_s, Array{u"2"_s})}}});
        row("no collapse", noCollapse, "<a/><b>1</b><a>2</a><a/>",
            {root, {u"b"_s, text(u"1"_s)}, {u"a"_s, Array{text(u"2"_s)}}});
        row("no strip", {.stripEmptyNodes = false}, "<a/><b>1</b><b/>",
            {root, {u"a"_s, Tree()}, {u"b"_s, Array{u"1"_s, Tree()}}});
        row("no strip, no collapse", {.collapseTextNodes = false, .stripEmptyNodes = false}, "<a/><b>1</b>",
            {root, {u"a"_s, text(u""_s)}, {u"b"_s, text(u"1"_s)}});
        row("no trim", {.trimWhiteSpace = false}, " <a> x\n</a><b> </b>",
            {root, {u"__text"_s, u" "_s}, {u"a"_s, u" x\n"_s}, {u"b"_s, u" "_s}});
        row("comments", {.preserveComments = true}, "<a>ab<!--c-->cd<!-- d --></a>",
            {root, {u"a"_s, Tree{{u"__comments"_s, Array{u"c"_s, u" d "_s}}, {u"__text"_s, u"abcd"_s}}}});
        row("wrap", wrap, "<a>1</a>", {{u"r"_s, Tree{root, {u"a"_s, u"1"_s}}}});
        row("wrap text", wrap, "t", {{u"r"_s, u"t"_s}});
        row("wrap nothing", wrap, "", {});
        row("wrap nothing, no strip", {.collapseTextNodes = false, .stripEmptyNodes = false, .wrapRootNode = true}, "",
            tree(u"r"_s, Tree{root, {u"__text"_s, u""_s}}));
        row("wrap comments", {.preserveComments = true, .wrapRootNode = true}, "1</r><!--c--><!--d",
            {{u"r"_s, u"1"_s}, {u"__comments"_s, Array{u"c"_s}}});
        row("element __name that is no text", noCollapse, "<a><__name>b</__name></a>",
            {root, {u"a"_s, tree(u"__name"_s, text(u"b"_s))}});
        row("attributes in a dictionary", {.attributesMode = Attributes::AttributesInDictionary}, "<a x='1' y='2'/>",
            {root, {u"a"_s, tree(u"__attributes"_s, Tree{{u"x"_s, u"1"_s}, {u"y"_s, u"2"_s}})}});
        row("merged attributes", {.attributesMode = Attributes::AttributesMerged}, "<a x='1' y='2'><x>3</x></a>",
            {root, {u"a"_s, Tree{{u"x"_s, Array{u"1"_s, u"3"_s}}, {u"y"_s, u"2"_s}}}});
        row("dropped attributes", {.attributesMode = Attributes::AttributesDropped}, "<a x='1'>t</a><b y='2'/>",
            {root, {u"a"_s, u"t"_s}});
        row("all names", {.nodeNameMode = Names::NameAlways}, "<a><b>1</b></a><c/><d>2</d>",
            {root, {u"a"_s, Tree{{u"__name"_s, u"a"_s}, {u"b"_s, u"1"_s}}}, {u"d"_s, u"2"_s}});
        row("no names", {.nodeNameMode = Names::NameNever}, "<a>1</a>", {{u"a"_s, u"1"_s}});
        // clang-format on
    }

    void settings()
    {
        QFETCH(const Settings, settings);
        QFETCH(const QByteArray, xml);
        Parser parser;
        parser.settings = settings;
        const auto parsed = parser.dictionaryWithData(xml);
        QVERIFY(parsed);
        QTEST(*parsed, "expected");
    }

    void stopsAtTheFirstError_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<Tree>("expected");
        QTest::addColumn<int>("line");
        const auto row = [](const char *name, const QByteArray &xml, const Tree &expected,
                            int line) { QTest::newRow(name) << xml << expected << line; };
        const Tree whole{root, {u"a"_s, u"1"_s}};
        // clang-format off
        row("cut in a text", "<r>t<a>1</a>\n<b>2", {root, {u"__text"_s, u"t"_s}, {u"a"_s, u"1"_s}, {u"b"_s, Tree()}}, 2);
        row("cut in a tag", "<r><a>1</a>\n\n<", whole, 3);
        row("cut in a start tag", "<r><a>1</a>\n<b c='1' ", whole, 2);
        row("cut in a name", "<r><a>1</a>\n<b", whole, 2);
        row("character in a start tag", "<r><a>1</a>\n<b\x01>2</b></r>", whole, 2);
        row("cut in a sibling", "<r><a>1</a><a><c>2</c>\n", {root, {u"a"_s, Array{u"1"_s, tree(u"c"_s, u"2"_s)}}}, 2);
        row("wrong end", "<r><a>1</a>\n</b><c>2</c></r>", whole, 2);
        row("text not closed yet", "<r>t<a b=1/></r>", {root}, 1);
        row("unknown entity", "<r><a>1</a>\n&nope;<b>2</b></r>", whole, 2);
        row("behind the root", "<r><a>1</a></r>\n<s/>", whole, 2);
        row("null", "<r>\n<a>1</a>\0<b>2</b></r>"_ba, whole, 2);
        row("bad UTF-8", "<r><a>1</a>\n\xFF<b>2</b></r>"_ba, whole, 2);
        // clang-format on
        for (const char *xml :
             {"", " \n", "text", "<", "<?xml version='1.0'?>", "<!--c-->", "</r>"})
            QTest::addRow("nothing in \"%s\"", xml) << QByteArray(xml) << Tree() << 0;
    }

    void stopsAtTheFirstError()
    {
        QFETCH(const QByteArray, xml);
        QFETCH(const int, line);
        Parser parser;
        const auto parsed = parser.dictionaryWithData(xml);
        QCOMPARE(parsed.has_value(), line > 0);
        QTEST(parsed.value_or(Tree()), "expected");
        QVERIFY(parser.firstError() && !parser.firstError()->message.isEmpty());
        QVERIFY(line == 0 || parser.firstError()->line == line);
        QVERIFY(parser.dictionaryWithData("<r/>") && !parser.firstError()); // starts afresh
    }

    /// The text is decoded already; what a declaration says of its bytes is of the past.
    void encodingIsNotBelieved()
    {
        for (const char *name : {"UTF-8", "ISO-8859-1", "UTF-16", "x-unknown"}) {
            const auto parsed = dictionaryWithXMLString(
                u"\uFEFF<?xml version='1.0' encoding='%1'?>\r\n<r><b>ä€</b></r>"_s.arg(
                    QLatin1String(name)));
            QVERIFY2(parsed && parsed->string(u"b") && *parsed->string(u"b") == u"ä€", name);
        }
    }

    void shortTextsComeBackRight()
    {
        QStringList texts;
        for (int length = 1; length <= 20; ++length) {
            for (int place = 0; place < length; ++place) {
                for (const QChar changed : {u'1', u'p', u'2', u'ä', u'0'})
                    texts += QString(length, u'0').replace(place, 1, changed);
            }
        }
        for (int number = 0; number < 20000; ++number)
            texts += QString::number(number);
        texts += texts;
        const auto parsed =
            dictionaryWithXMLString(u"<r><v>"_s + texts.join(u"</v><v>"_s) + u"</v></r>"_s);
        QStringList read;
        for (const Value &value : *parsed->find(u"v")->array())
            read += value.description();
        QCOMPARE(read, texts);
    }

    /// Long elements look their children up in another way than short ones.
    void manyNames()
    {
        QString xml;
        Tree expected{root};
        for (int i = 0; i < 400; ++i) {
            const QString name = u'n' + QString::number(i % 200);
            xml += u"<%1>%2</%1>"_s.arg(name, i < 200 ? u"a"_s : u"b"_s);
            expected.insert(name, Array{u"a"_s, u"b"_s});
        }
        auto parsed = dictionaryWithXMLString(u"<r>"_s + xml + u"</r>"_s);
        QCOMPARE(*parsed, expected);
        parsed->remove(u"n17");
        expected.remove(u"n17");
        QVERIFY(!parsed->find(u"n17") && parsed->find(u"n18"));
        QCOMPARE(*parsed, expected);
    }

    /// The constructors take the shared parser's settings, in copies.
    void sharedSettings()
    {
        Parser copy(Parser::sharedInstance());
        copy.settings.wrapRootNode = true;
        QCOMPARE(dictionaryWithXMLString(u"<r/>"), std::optional(Tree{root}));
        Parser::sharedInstance().settings.nodeNameMode = Parser::NodeNameMode::NameNever;
        const auto nameless = dictionaryWithXMLString(u"<r/>");
        Parser::sharedInstance().settings = {};
        QCOMPARE(nameless, std::optional(Tree()));
    }
};

QUILLET_TEST(XMLDictionaryParserTest)

#include "XMLDictionaryParserTest.moc"
