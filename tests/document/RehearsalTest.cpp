#include "ListText.h"
#include "MadeUpLists.h"

#include "document/list/ListSnapshot.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "document/write/TLLWriter.h"
#include "testing/TestMain.h"

#include <QTest>

#include <functional>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

using Edit = std::function<void(TLLDocument &)>;
Q_DECLARE_METATYPE(Edit)

namespace {

const auto Analogue = FileSource::Analogue;

/// What is lost, as "missing 2: A B, tail".
QString described(const Rehearsal &rehearsal)
{
    QStringList texts;
    const auto stations = [&texts](const char *what, const Rehearsal::Stations &found) {
        if (found.count > 0)
            texts.append(QStringLiteral("%1 %2: %3")
                             .arg(QLatin1String(what), QString::number(found.count),
                                  found.names.join(u' ')));
    };
    const auto flag = [&texts](const char *what, bool isSet) {
        if (isSet)
            texts.append(QLatin1String(what));
    };
    flag("refused", rehearsal.isRefused);
    stations("missing", rehearsal.missing);
    stations("doubled", rehearsal.doubled);
    stations("changed", rehearsal.changed);
    stations("renumbered", rehearsal.renumbered);
    flag("unread", rehearsal.unread > 0);
    flag("tail", rehearsal.losesTail);
    flag("surroundings", rehearsal.losesSurroundings);
    flag("extras", rehearsal.losesExtras);
    flag("encoding", rehearsal.mixesEncodings);
    flag("rewritten", rehearsal.rewrittenValues > 0);
    return texts.join(u", "_s);
}

} // namespace

class RehearsalTest : public QObject
{
    Q_OBJECT

private slots:
    void healthyFilesAreClean_data()
    {
        QTest::addColumn<QString>("sample");
        for (const char *name : {"cable.tll", "antenna.tll", "satellite.tll"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void healthyFilesAreClean()
    {
        QFETCH(const QString, sample);
        TLLDocument document;
        QVERIFY(read(document, readSample(sample)));
        QCOMPARE(described(rehearse(document.list(), written(document))), QString());
        for (const FiledStation &filed : document.lists().roll()) {
            if (filed.place.index % 7 == 0)
                filed.station->setSkipped(!filed.station->isSkipped());
            else if (filed.place.index % 11 == 0)
                filed.station->setStationName(u" Ünï "_s);
        }
        QCOMPARE(described(rehearse(document.list(), written(document))), QString());
        for (const FiledStation &filed : document.lists().roll())
            QCOMPARE(filed.station->name(), QString()); // none was decoded
    }

    void cases_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QString>("lost");
        QTest::addColumn<QString>("lostAfterRepair");
        const Edit none = [](TLLDocument &) {};
        const auto row = [](const char *name, const QString &text, const Edit &edit,
                            const QString &lost, const QString &lostAfterRepair = {}) {
            QTest::newRow(name) << text << edit << lost << lostAfterRepair;
        };
        const QString abc = digital(items({u"A"_s, u"B"_s, u"C"_s}));
        const QString everything = u"missing 3: A B C, surroundings, extras"_s;
        row("nothing", abc, none, {});

        row("renamed with &", abc, rename(u"R&B"_s), u"missing 1: C, changed 1: R&B"_s);
        row("renamed with <", abc, rename(u"1<2"_s), u"missing 1: C, changed 1: 1<2"_s);
        row("escaped name", digital(items({u"A"_s, u"R&amp;B"_s, u"C"_s})), none,
            u"missing 1: C, changed 1: R&B"_s);
        row("escaped twice", digital(items({u"A"_s, u"R&amp;lt;"_s, u"C"_s})), none,
            u"changed 1: R&lt;"_s);
        row("control character", digital(items({u"A"_s, u"B\x01"_s, u"C"_s})), none,
            u"changed 1: 2, unread, tail"_s);
        row("bare &", digital(items({u"A & B"_s, u"B"_s, u"C"_s})), none,
            u"changed 1: 1, unread, tail"_s);

        const Item strange{{u"prNum"_s, u"2"_s},
                           {u"sourceIndex"_s, u"9"_s},
                           {u"serviceType"_s, u"1"_s},
                           {u"vchName"_s, u"B"_s}};
        row("unknown source",
            digital(items({u"A"_s}) + makeItem(strange) + makeItem(makeStation(3, u"C"_s))), none,
            u"missing 3: B A C, surroundings, extras"_s);
        row("digital station among analogue ones",
            file(u"<ATV>\r\n"_s + items({u"A"_s, u"B"_s, u"C"_s}) + u"</ATV>"_s), none, everything);

        row("attribute of the section", QString(abc).replace(u"<DTV>"_s, u"<DTV n='1'>"_s), none,
            everything);
        row("attributes of all stations", QString(abc).replace(u"<ITEM>"_s, u"<ITEM n='1'>"_s),
            none, everything);
        row("attribute of one station",
            QString(abc).replace(abc.lastIndexOf(u"<ITEM>"_s), 6, u"<ITEM n='1'>"_s), none,
            u"extras"_s);
        row("attribute of a field, repeated fields",
            QString(abc).replace(u"<vchName>B"_s, u"<x a='&amp;'>1</x><x>2</x>\r\n<vchName>B"_s),
            none, {});
        row("digital before analogue",
            file(u"<DTV>\r\n"_s + items({u"A"_s}) + u"</DTV><ATV>\r\n"_s +
                 makeItem(makeStation(1, u"Old"_s, Analogue)) + u"</ATV>"_s),
            none, u"refused, missing 2: Old A"_s);
        row("end tag in a comment",
            QString(abc).replace(abc.lastIndexOf(u"<ITEM>"_s), 0, u"<!-- </DTV> -->"_s), none,
            u"extras"_s);
        row("comment among stations",
            QString(abc).replace(abc.lastIndexOf(u"<ITEM>"_s), 0, u"<!-- C -->"_s), none,
            u"extras"_s);
        row("element among stations",
            QString(abc).replace(abc.lastIndexOf(u"<ITEM>"_s), 0, u"<more>1</more>"_s), none,
            u"extras"_s);
        row("item of text", QString(abc).replace(u"</DTV>"_s, u"<ITEM>text</ITEM></DTV>"_s), none,
            u"extras"_s);
        row("text between fields", QString(abc).replace(u"<vchName>B"_s, u"stray<vchName>B"_s),
            none, u"extras"_s);
        const QString both = file(u"<ATV>\r\n"_s + makeItem(makeStation(1, u"Old"_s, Analogue)) +
                                  u"</ATV>\r\n<DTV>\r\n"_s + items({u"A"_s, u"B"_s, u"C"_s}));
        // The footer of the analogue section is written, and the text ends there for a reader.
        row("attribute of the only digital station",
            file(u"<ATV>\r\n"_s + makeItem(makeStation(1, u"Old"_s, Analogue)) + u"</ATV><DTV>"_s +
                 items({u"A"_s}).replace(u"<ITEM>"_s, u"<ITEM n='1'>"_s) + u"</DTV>"_s)
                .remove(u"<rest>1</rest>"_s),
            none, u"surroundings"_s);
        row("cut, with analogue stations", both.left(both.indexOf(u"</CHANNEL>"_s)), none,
            u"doubled 3: A B C, surroundings"_s);
        const QString cutBehindText =
            u"<ATV><ITEM>text</ITEM></ATV><DTV><ITEM><prNum>20</prNum><sourceInd"_s;
        row("cut in the first station, behind an item of text",
            file({}).section(u"</CHANNEL>"_s, 0, 0) + cutBehindText, none, u"doubled 1: 20"_s);
        QString withEmpty = abc.left(abc.indexOf(u"</DTV>"_s));
        withEmpty.insert(withEmpty.lastIndexOf(u"<ITEM>"_s), u"<ITEM/><ITEM> </ITEM>"_s);
        row("cut, with empty items", withEmpty, none, {});
        row("cut in a field without text", abc.left(abc.indexOf(u"<vchName>C"_s)) + u"<vchName>"_s,
            none, u"changed 1: 3"_s);
        row("behind the last station", QString(abc).replace(u"</DTV>"_s, u"<!-- end --></DTV>"_s),
            none, u"surroundings, extras"_s);

        row(
            "one moved over another of its number", abc,
            [](TLLDocument &document) {
                StationList &list = *document.lists().list(true, 0);
                list[0] = list[1];
            },
            u"missing 1: A, doubled 1: B"_s);
        row(
            "number beyond the highest", abc,
            [](TLLDocument &document) { station(document, true, 0, 2)->setProgramNum(16385); },
            u"renumbered 2: B C"_s, u"renumbered 2: B C"_s); // reads as A 1, C 1, B 2
        row(
            "equal numbers", abc,
            [](TLLDocument &document) { station(document, true, 0, 1)->setProgramNum(1); },
            u"renumbered 1: B"_s, u"renumbered 1: B"_s);
        QString unread = digital(items({u"A"_s, u"B"_s}))
                             .replace(u"<prNum>1<"_s, u"<prNum t=\"0\">1<"_s) // reads as 9999
                             .replace(u"<prNum>2<"_s, u"<prNum>10000<"_s);
        unread.insert(unread.lastIndexOf(u"<ITEM>"_s) + 5, u" x=\"1\""_s);
        row(
            "numbers that are told by the place", unread,
            [](TLLDocument &document) {
                StationList &list = *document.lists().list(true, 0);
                std::swap(list[0], list[1]);
                list[0]->setProgramNum(9999);
                list[1]->setProgramNum(10000);
            },
            u"changed 1: A, extras"_s, u"renumbered 2: B A"_s);
        row("name that XML cannot hold", abc, rename(u"\x01X"_s),
            u"missing 1: C, changed 1: \x01X"_s, u"changed 1: \x01X"_s);
        row(
            "cut station edited", digital(items({u"A"_s, u"B"_s, u"C & D"_s})),
            [](TLLDocument &document) {
                station(document, true, 0, 2)->setProgramNum(9);
                station(document, true, 0, 2)->setSkipped(true);
            },
            u"changed 1: 9, tail"_s);
        row("no stations", u"\x01 This is no channel list"_s, none, u"refused"_s);

        const QString a = channel(u"A"_s, 3), b = channel(u"B"_s, 5);
        const QString r = channel(u"R"_s, 16385, "CABLE DIGITAL", 2);
        const QString s = channel(u"S"_s, 4, "SATELLITE DIGITAL");
        const Edit showCable = [](TLLDocument &document) { document.switchToSource(0); };
        row("JSON in order", legacy({a, b, r}), showCable, {});
        row("JSON out of order", legacy({r, b, a}), showCable, u"missing 1: R, doubled 1: A"_s);
        row(
            "JSON, another source shown", legacy({a, s, b}),
            [](TLLDocument &document) {
                station(document, true, 0, 1)->setSkipped(true);
                document.switchToSource(1);
            },
            u"changed 1: B"_s);
        row(
            "JSON, radio shown", legacy({a, s, b}),
            [](TLLDocument &document) {
                station(document, true, 1, 0)->setSkipped(true);
                document.switchToMode(false);
            },
            u"changed 1: S"_s);
        row("JSON, odd elements", legacy({b, u"null"_s, a}), showCable,
            u"missing 1: ??, doubled 1: A"_s);
        row("JSON element with attribute", legacy({a, b}, u"legacybroadcast n='1'"_s), showCable,
            u"missing 2: A B, surroundings, extras"_s);
        row("JSON element with a wrong end", // the list is not read when nothing follows it
            legacy({a, b}).replace(u"</legacy"_s, u"<legacy"_s), showCable,
            u"missing 2: A B, tail, surroundings"_s);
        row("JSON with an element in its text",
            legacy({a, b}).replace(u"</legacy"_s, u"<x>1</x></legacy"_s), showCable, u"extras"_s);
        row("JSON with a comment in its text",
            legacy({b, a}).replace(u"</legacy"_s, u"<!-- c --></legacy"_s), showCable, u"extras"_s);
        row("JSON without a list", file(u"<legacybroadcast>{\"a\":1}</legacybroadcast>"_s), none,
            u"surroundings"_s);
        row("broken JSON", legacy({a, u"}"_s}), showCable, u"surroundings"_s);
    }
    void cases()
    {
        QFETCH(const QString, text);
        QFETCH(const Edit, edit);
        TLLDocument document;
        QVERIFY(read(document, text));
        QVERIFY(repairedTLL(document.list()) == text.toUtf8()); // nothing was edited yet
        edit(document);
        const QByteArray plain = written(document), repaired = repairedTLL(document.list());
        // As it is done beside the thread that goes on editing: with a copy.
        const auto [list, shown] = ListSnapshot(document.list(), document.stations()).takeCopy();
        document.clearVars();
        QVERIFY(writeTLL(list, shown) == plain);
        QVERIFY(repairedTLL(list) == repaired);
        QTEST(described(rehearse(list, plain)), "lost");
        QTEST(described(rehearse(list, repaired)), "lostAfterRepair");
    }

    /// The plain writing of a JSON list knows one form of a number and one member of a name.
    void formsOfJSON_data()
    {
        QTest::addColumn<QString>("members"); // of a channel
        QTest::addColumn<QString>("lost");
        const auto row = [](const char *members, const QString &lost) {
            QTest::newRow(members) << QString::fromLatin1(members) << lost;
        };
        row("\"x\":[1.5,100000.0,1e+16,-7,0,18446744073709551615]", {});
        row("\"x\":\"\\u0041\\/\"", {}); // escapes mean the same
        for (const char *number :
             {"123456789012345678901", "1.50", "1.0e5", "2E3", "-0", "0.1000000000000000055"})
            row(QByteArray("\"x\":[{\"y\":" + QByteArray(number) + "}]").constData(),
                u"rewritten"_s);
        row("\"x\":1E400", u"missing 1: A, doubled 1: A, rewritten"_s);
        row("\"x\":1,\"x\":1", u"rewritten"_s);
        row("\"optrBlocked\":false,\"optrBlocked\":true", u"rewritten"_s);
        // Of those that an edit takes the place of nothing is lost.
        row("\"optrBlocked\":1.50", {});
        row("\"optrBlocked\":1.50,\"y\":1.50", u"rewritten"_s);
    }
    void formsOfJSON()
    {
        QFETCH(const QString, members);
        QFETCH(const QString, lost);
        const QString given = channel(u"A"_s, 1).replace(u"}"_s, u',' + members + u'}');
        TLLDocument document;
        QVERIFY(read(document, legacy({given, channel(u"B"_s, 2)})));
        document.switchToSource(0);
        if (members.startsWith(u"\"optrBlocked\":1"))
            station(document, true, 0, 0)->setBlocked(true);
        QCOMPARE(described(rehearse(document.list(), written(document))), lost);
        QCOMPARE(described(rehearse(document.list(), repairedTLL(document.list()))), QString());
    }

    void latin1DeclaredOverUtf8()
    {
        const QByteArray latin1 = digital(items({u"Ä"_s, u"B"_s}))
                                      .replace(u"?>"_s, u" encoding='ISO-8859-1'?>"_s)
                                      .toLatin1();
        TLLDocument document;
        QVERIFY(read(document, latin1));
        QCOMPARE(described(rehearse(document.list(), written(document))), u"encoding"_s);
        QCOMPARE(described(rehearse(document.list(), repairedTLL(document.list()))), QString());
    }
};

QUILLET_TEST(RehearsalTest)

#include "RehearsalTest.moc"
