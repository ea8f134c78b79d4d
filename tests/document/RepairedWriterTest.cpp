#include "ListText.h"
#include "MadeUpLists.h"

#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "testing/TestMain.h"

#include <QTest>

#include <algorithm>

using namespace quillet;
using namespace quillet::testing;

/// The repaired writing of a list, byte for byte.
class RepairedWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void repairsKeepTheBytes()
    {
        const QString a =
            u"<ITEM>\n  <prNum> 1 </prNum><isSkipped/><!-- one --><x n='1'>1</x><sourceIndex>3"
            "</sourceIndex><serviceType>1</serviceType><vchName>&#65;</vchName></ITEM>"_s;
        const QString b =
            u"<ITEM><prNum>2</prNum>\r\n  <isBlocked>0</isBlocked><sourceIndex>3</sourceIndex>"
            "<serviceType>1</serviceType><x>2</x><x>3</x><vchName>B</vchName></ITEM>"_s;
        const QString between = u"\n<ITEM/><ITEM> </ITEM>\n  <more/><!-- <ITEM> -->"_s;
        const QString end = u"\n<!-- & -->\n"_s;
        TLLDocument document;
        QVERIFY(read(document, digital(a + between + b + end)));
        StationList &list = *document.lists().list(true, 0);
        QCOMPARE(list.size(), std::size_t(2));
        list[0]->setSkipped(true);
        list[0]->setBlocked(true);
        list[1]->setStationName(u"<B> & \"C\""_s);
        list[1]->setField(u"isBlocked"_s, {});
        std::swap(list[0], list[1]);
        list[0]->setProgramNum(1);
        list[1]->setProgramNum(2);
        const QString newA =
            QString(a)
                .replace(u" 1 "_s, u"2"_s)
                .replace(u"</ITEM>"_s, u"<isSkipped>1</isSkipped>\n<isBlocked>1</isBlocked>\n"
                                       "</ITEM>"_s)
                .replace(u"<isSkipped/>"_s, u"<isSkipped>1</isSkipped>"_s)
                .replace(u"</vchName><isSkipped>1</isSkipped>\n"_s, u"</vchName>"_s);
        const QString newB = QString(b)
                                 .replace(u"<prNum>2"_s, u"<prNum>1"_s)
                                 .remove(u"\r\n  <isBlocked>0</isBlocked>"_s)
                                 .replace(u">B<"_s, u">&lt;B&gt; &amp; &quot;C&quot;<"_s);
        const QString expected = digital(newB + between + newA + end);
        QCOMPARE(QString::fromUtf8(repairedTLL(document.list())), expected);
    }

    void repairsInTheFilesEncoding()
    {
        const QByteArray latin1 = digital(items({u"Ä"_s, u"B"_s})).toLatin1();
        TLLDocument document;
        QVERIFY(read(document, latin1));
        QVERIFY(repairedTLL(document.list()) == latin1);
        rename(u"Ö"_s)(document);
        QVERIFY(repairedTLL(document.list()) == QByteArray(latin1).replace("B</", "\xD6</"));
        rename(u"Ж"_s)(document);
        QVERIFY(repairedTLL(document.list()) == digital(items({u"Ä"_s, u"Ж"_s})).toUtf8());
    }

    /// Of a JSON list only what was edited is written anew, wherever it is named.
    void repairsKeepTheBytesOfJSON_data()
    {
        QTest::addColumn<QByteArray>("json"); // of which the last station is renamed and skipped
        QTest::addColumn<QByteArray>("edited");
        const auto row = [](const char *name, const char *json, const char *edited) {
            const auto quoted = [](const char *text) {
                return QByteArray(text).replace('\'', '"');
            };
            QTest::newRow(name) << quoted(json) << quoted(edited);
        };
        row("forms",
            " {'x':[1.50,-0,1E400], 'x':18446744073709551616,'channelList' :[ {'majorNumber':1.0e0,"
            "'serviceType':1,'y':'\\u0041\\/\\ud83d\\udcfa'},null\t,"
            "{'channelName':'C','majorNumber':3,'serviceType':1,'z':1e5,'z':1.0E+2}]} ",
            " {'x':[1.50,-0,1E400], 'x':18446744073709551616,'channelList' :[ {'majorNumber':1.0e0,"
            "'serviceType':1,'y':'\\u0041\\/\\ud83d\\udcfa'},null\t,"
            "{'channelName':'\\u003c&amp;','majorNumber':3,'serviceType':1,'z':1e5,'z':1.0E+2,"
            "'skipped':true}]} ");
        row("lines", "{\r\n'channelList' : [{},\r\n {\r\n  'serviceType' : 1\r\n}]}\r\n",
            "{\r\n'channelList' : [{},\r\n {\r\n  'serviceType' : 1,\r\n  'majorNumber' : 2,"
            "\r\n  'channelName' : '\\u003c&amp;',\r\n  'skipped' : true\r\n}]}\r\n");
        row("named again",
            "{'channelList':[1],'channelList':[{'serviceType':1,'skipped':0,'channel\\u004eame':'C'"
            ","
            "'skipped':false}],'end':{'channelList':[]}}",
            "{'channelList':[1],'channelList':[{'serviceType':1,'skipped':true,"
            "'channel\\u004eame':'\\u003c&amp;','skipped':true,'majorNumber':1}],"
            "'end':{'channelList':[]}}");
        row("references",
            "{'a':'&lt;&#228;&#x1F4FA;&amp;','channelList':[{'x':'&#38;&apos;\xC3\xA4',"
            "'serviceType':&#49;,'channelName':&quot;C&quot;,'majorNumber':3}]}",
            "{'a':'&lt;&#228;&#x1F4FA;&amp;','channelList':[{'x':'&#38;&apos;\xC3\xA4',"
            "'serviceType':&#49;,'channelName':'\\u003c&amp;','majorNumber':3,'skipped':true}]}");
        row("blocks",
            "{'a':1.50,<![CDATA['b':'<&>]','channelList':[{'serviceType':1]]>,"
            "'channelName':'C','majorNumber':3}]}",
            "{'a':1.50,'b':'&lt;&amp;&gt;]','channelList':[{'serviceType':1,"
            "'channelName':'\\u003c&amp;','majorNumber':3,'skipped':true}]}");
    }
    void repairsKeepTheBytesOfJSON()
    {
        QFETCH(const QByteArray, json);
        const auto around = [](const QByteArray &text) {
            return "<TLLDATA><CHANNEL><legacybroadcast>" + text +
                   "</legacybroadcast></CHANNEL></TLLDATA>";
        };
        TLLDocument document;
        QVERIFY(read(document, around(json)));
        QVERIFY(!document.lists().roll().empty());
        const StationPtr last = document.lists().roll().back().station;
        last->setStationName(u"<&"_s);
        last->setSkipped(true);
        QFETCH(const QByteArray, edited);
        QCOMPARE(repairedTLL(document.list()), around(edited));
        QVERIFY(rehearse(document.list(), around(edited)).isClean());
    }

    /// The repaired writing keeps places, whichever list is on show, so that it comes back the
    /// same.
    void repairsTheJSONList()
    {
        const QString a = channel(u"A"_s, 3), b = channel(u"B"_s, 5), c = channel(u"C"_s, 7);
        const QString r = channel(u"R"_s, 16385, "CABLE DIGITAL", 2);
        const QString s = channel(u"S"_s, 4, "SATELLITE DIGITAL");
        TLLDocument document;
        QVERIFY(read(document, legacy({c, r, b, s, a})));
        StationList &list = *document.lists().list(true, 0);
        std::rotate(list.begin(), list.begin() + 1, list.end()); // B, C, A
        station(document, true, 1, 0)->setSkipped(true);
        const QByteArray expected =
            legacy({b, r, c, QString(s).replace(u"false"_s, u"true"_s), a}).toUtf8();
        TLLDocument again;
        QVERIFY(read(again, expected));
        for (const int shown : {0, 1}) {
            document.switchToSource(shown);
            QCOMPARE(repairedTLL(document.list()), expected);
            again.switchToSource(shown);
            QCOMPARE(repairedTLL(again.list()), expected);
        }
    }
};

QUILLET_TEST(RepairedWriterTest)

#include "RepairedWriterTest.moc"
