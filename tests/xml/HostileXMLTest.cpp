#include "TreeText.h"

#include "testing/TestFiles.h"
#include "testing/TestMain.h"
#include "xml/XMLDictionaryParser.h"

#include <QTemporaryDir>
#include <QUrl>

#include <libxml/xmlmemory.h>

#include <new>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

class NoEvents final : public EventHandler
{
public:
    void startElement(const char *, const char *const *) override { ++count; }
    void endElement() override { ++count; }
    void characters(QByteArrayView) override {}
    void cdataBlock(QByteArrayView) override {}
    void comment(QByteArrayView) override {}
    int count = 0;
};

} // namespace

/// Files that are made to harm: none may take long, grow memory or make the parser read elsewhere.
namespace {

int allocationsLeft = 0;
xmlMallocFunc plainAllocation = nullptr;

void *allocateSome(size_t size)
{
    return allocationsLeft-- > 0 ? plainAllocation(size) : nullptr;
}

} // namespace

class HostileXMLTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsReadOrExpanded_data()
    {
        QTest::addColumn<QString>("doctype"); // %1 is a folder's URL
        QTest::addColumn<int>("line");        // of the error
        QString bomb = u"[<!ENTITY b0 'SECRET'>"_s;
        for (int i = 1; i < 30; ++i)
            bomb += u"<!ENTITY b%1 '&b%2;&b%2;&b%2;&b%2;&b%2;&b%2;&b%2;&b%2;'>"_s.arg(i).arg(i - 1);
        const auto row = [](const char *name, const QString &doctype, int line = 3) {
            QTest::newRow(name) << doctype << line;
        };
        row("internal", u"[<!ENTITY x 'SECRET'>]"_s);
        row("markup", u"[<!ENTITY x '<c>SECRET</c>'>]"_s);
        row("predefined", u"[<!ENTITY lt 'SECRET'><!ENTITY x '&lt;'>]"_s);
        row("external", u"[<!ENTITY x SYSTEM '%1/secret.txt'>]"_s);
        row("public", u"[<!ENTITY x PUBLIC 'p' '%1/secret.txt'>]"_s);
        row("parameter", u"[<!ENTITY % p SYSTEM '%1/secret.dtd'>%p;]"_s, 1);
        row("internal parameter", u"[<!ENTITY % p \"<!ENTITY x 'SECRET'>\">%p;]"_s, 1);
        row("external type", u"SYSTEM '%1/secret.dtd' [<!ENTITY y 'SECRET'>]"_s);
        row("nested bomb", bomb + u"<!ENTITY x '&b29;'>]"_s);
        row("wide bomb", u"[<!ENTITY x '"_s + u"SECRET"_s.repeated(1000) + u"'>]"_s);
    }

    void nothingIsReadOrExpanded()
    {
        const QTemporaryDir folder;
        testing::writeFile(folder.filePath(u"secret.txt"_s), "SECRET");
        testing::writeFile(folder.filePath(u"secret.dtd"_s),
                           "<!ENTITY x 'SECRET'>\n<!ATTLIST r d CDATA 'SECRET'>");
        QFETCH(QString, doctype);
        QFETCH(const int, line);
        doctype.replace(u"%1"_s, QUrl::fromLocalFile(folder.path()).toString());
        const QString start = u"<!DOCTYPE r "_s + doctype + u">\n<r><a>1</a>\n"_s;
        for (const QString &reference :
             {u"<b>&x;</b>"_s, u"&x;"_s.repeated(10000), u"<b z='1&x;2'>3</b>"_s}) {
            XMLDictionaryParser parser;
            const auto tree =
                parser.dictionaryWithString(start + reference + u"<after>2</after></r>"_s);
            QVERIFY(parser.firstError());
            QCOMPARE(parser.firstError()->line, line);
            const QString text = formattedDescription(tree.value_or(Dictionary()));
            QVERIFY2(!text.contains(u"SECRET"_s), qPrintable(text));
            QVERIFY2(!text.contains(u"after"), qPrintable(text)); // it stops at the reference
            QCOMPARE(text.contains(u"<a> = 1"), line == 3);
        }
        XMLDictionaryParser parser; // what is not referred to does no harm
        QCOMPARE(parser.dictionaryWithString(start + u"<b>&lt;</b></r>"_s).has_value(), line == 3);
        QCOMPARE(parser.firstError().has_value(), line == 1);
    }

    void deepNesting()
    {
        for (const int depth : {512, 513, 1'000'000}) {
            XMLDictionaryParser parser;
            const auto tree = parser.dictionaryWithData(QByteArray("<a>").repeated(depth) + 'x' +
                                                        QByteArray("</a>").repeated(depth));
            QCOMPARE(parser.firstError().has_value(), depth > 512);
            int levels = 1;
            const Dictionary *node = &*tree;
            for (; node->dictionary(u"a"); node = node->dictionary(u"a"))
                ++levels;
            // The innermost one is its text when it was closed.
            QCOMPARE(levels, depth > 512 ? 512 : 511);
            QCOMPARE(node->string(u"a") != nullptr, depth == 512);
        }
    }

    void limits_data()
    {
        QTest::addColumn<QByteArray>("before"); // the place where it is too much
        QTest::addColumn<QByteArray>("piece");  // "%1" is a number
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<int>("allowed");
        const auto row = [](const char *name, const char *before, const char *piece,
                            const char *after, int allowed) {
            QTest::newRow(name) << QByteArray(before) << QByteArray(piece) << QByteArray(after)
                                << allowed;
        };
        row("attributes", "<r><a>1</a>\n<b", " a%1='>'", "/></r>", 1000);
        row("attributes, cut", "<r><a>1</a>\n<b", " a%1='1'", "", 1000);
        row("no attributes but JSON", "<r><a>1</a><![CDATA[<b", "\"k%1\":1,", "]]></r>", 5000);
        row("no attributes but a comment", "<r><a>1</a><!-- <b", " '%1'", "--></r>", 5000);
        row("names", "<r><a>1</a>", "<n%1/>", "</r>", 19'900);
        row("instructions", "<r><a>1</a>", "<?p%1 x?>", "</r>", 19'900);
        row("document type", "<!DOCTYPE r [<!--]>--><!ATTLIST r a (", "a%1|", "b) 'b'>]><r/>",
            2000);
    }
    /// Beyond them the library's time grows with the square.
    void limits()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const QByteArray, piece);
        QFETCH(const QByteArray, after);
        QFETCH(const int, allowed);
        const bool isBounded = !before.contains("<!") || before.contains("ATTLIST");
        for (const int count : {allowed, isBounded ? allowed * 2 : allowed}) {
            QByteArray text = before;
            for (int i = 0; i < count; ++i)
                text += QByteArray(piece).replace("%1", QByteArray::number(i));
            XMLDictionaryParser parser;
            const auto read = parser.dictionaryWithData(text + after);
            const auto &error = parser.firstError();
            QCOMPARE(error && error->isLimit, count > allowed);
            QCOMPARE(error.has_value(), count > allowed || after.isEmpty());
            QVERIFY(!before.contains("<a>") || *read->string(u"a") == u"1");
            QVERIFY(count == allowed || error->line == before.count('\n') + 1);
        }
    }

    /// What follows the first error is not looked at.
    void stopsAtOnce()
    {
        for (const QByteArray &flood : {"--"_ba, "&"_ba, "]]>"_ba, "</b>"_ba, "<b <"_ba}) {
            const QByteArray start = flood == "--" ? "<r><!-- "_ba : "<r>"_ba;
            EventParser parser(start + flood.repeated(1000) + "<a>1</a>--></r>");
            NoEvents events;
            QVERIFY(!parser.parse(events));
            QCOMPARE_LE(parser.error()->offset, start.size() + 4);
            QCOMPARE(events.count, 1);
        }
    }

    /// A text that was read in part must not pass for a damaged one.
    void memoryThatEnds()
    {
        xmlFreeFunc freeing;
        xmlMallocFunc allocating;
        xmlReallocFunc reallocating;
        xmlStrdupFunc copying;
        xmlMemGet(&freeing, &allocating, &reallocating, &copying);
        plainAllocation = allocating;
        const QByteArray text = "<r>" + "<a b='1'>x</a>"_ba.repeated(200) + "</r>";
        int failures = 0;
        for (allocationsLeft = 0; failures == 0 || allocationsLeft < 0; ++failures) {
            QVERIFY(failures < 10'000);
            allocationsLeft = failures;
            xmlMemSetup(freeing, allocateSome, reallocating, copying);
            EventParser parser(text);
            NoEvents events;
            bool isRead = false, isTold = false;
            try {
                isRead = parser.parse(events);
            } catch (const std::bad_alloc &) {
                isTold = true;
            }
            xmlMemSetup(freeing, allocating, reallocating, copying);
            QVERIFY2(isRead || isTold, qPrintable(QString::number(failures)));
        }
        QVERIFY(failures > 10);
    }

    void longText()
    {
        const qsizetype count = 12'000'000; // more than the parser allows by itself
        const auto tree =
            dictionaryWithXMLData("<r><a>" + QByteArray(count, 'x') +
                                  "\xC3\xA4 x\r\n y&lt;"_ba.repeated(count / 10) + "</a></r>");
        const QString expected = QString(count, u'x') + u"ä x\n y<"_s.repeated(count / 10);
        QVERIFY(*tree->string(u"a") == expected);
    }
};

QUILLET_TEST(HostileXMLTest)

#include "HostileXMLTest.moc"
