#include "ListText.h"
#include "MadeUpLists.h"

#include "document/repair/RepairedWriter.h"
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
