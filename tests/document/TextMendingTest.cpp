#include "ListText.h"

#include "document/read/ListReading.h"
#include "document/repair/FileDiagnosis.h"
#include "document/repair/MixedEncoding.h"
#include "document/repair/RepairedWriter.h"
#include "document/repair/TextMending.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QElapsedTimer>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Three cable stations; the second has that name.
QString listWith(const QString &name)
{
    return makeTLL({}, {makeStation(1, u"A"_s), makeStation(2, name), makeStation(3, u"C"_s)});
}

/// The usual list with one of its texts replaced, which must be there.
QByteArray changed(const QString &before, const QString &after)
{
    QString text = listWith(u"B"_s);
    const qsizetype at = text.indexOf(before);
    if (at < 0)
        qFatal("nothing to replace");
    return text.replace(at, before.size(), after).toUtf8();
}

/// The usual list up to a text in it.
QByteArray cutBefore(const QString &text)
{
    return listWith(u"B"_s).section(text, 0, 0).toUtf8();
}

QString counts(const Mending &mending)
{
    QStringList texts;
    const auto add = [&texts](const char *what, qsizetype count) {
        if (count > 0)
            texts.append(QLatin1String(what) + u' ' + QString::number(count));
    };
    add("ampersands", mending.ampersands);
    add("brackets", mending.brackets);
    add("controls", mending.controls);
    add("tags", mending.tags);
    add("strays", mending.strays);
    add("end", mending.endWasMissing ? 1 : 0);
    add("kept", mending.keptStation ? 1 : 0);
    add("dropped", mending.droppedStation ? 1 : 0);
    return texts.join(u", "_s);
}

QStringList stationsIn(const QByteArray &bytes)
{
    TLLDocument document;
    return read(document, bytes) ? listText(document) : QStringList{u"unreadable"_s};
}

/// A key of the tree of which no whole tag or attribute stands in the text.
QString madeUp(const Dictionary &node, const QByteArray &text)
{
    for (const auto &[key, value] : node) {
        const QByteArray name = key.toUtf8();
        const bool isThere = name.startsWith("__") ||
                             (name.startsWith('_') ? text.contains(' ' + name.sliced(1) + '=')
                                                   : text.contains('<' + name + '>') ||
                                                         text.contains('<' + name + ' '));
        if (!isThere)
            return key;
        const Array elements = value.array() ? *value.array() : Array{value};
        for (const Value &element : elements) {
            if (const Dictionary *inner = element.dictionary();
                inner && !madeUp(*inner, text).isEmpty())
                return madeUp(*inner, text);
        }
    }
    return {};
}

} // namespace

/// What can be mended comes back whole, and every station behind the damage with it.
class TextMendingTest : public QObject
{
    Q_OBJECT

private slots:
    void healthyTextStays()
    {
        for (const char *name :
             {"cable.tll", "satellite.tll", "antenna.tll", "satellite-json.tll"}) {
            const QByteArray whole = readSample(QString::fromLatin1(name));
            QVERIFY(!whole.isEmpty());
            const auto mended = mendText(whole);
            QVERIFY(mended);
            QCOMPARE(mended->utf8, whole);
            QCOMPARE(counts(mended->mending), QString());
        }
        const QByteArray rare = "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<!DOCTYPE a [<!ELEMENT a ANY>"
                                "]>\n<!-- < & -->\n<a b='1 > 0' c=\"&lt;\">&#x41;<![CDATA[< & ]]>"
                                "<?p < ?><b />x <i>y</i> z</a>\n";
        const auto mended = mendText(rare);
        QVERIFY(mended);
        QCOMPARE(mended->utf8, rare);
        QCOMPARE(counts(mended->mending), QString());
    }

    void mends_data()
    {
        QTest::addColumn<QByteArray>("damaged");
        QTest::addColumn<QStringList>("second"); // number and name of the station between A and C
        QTest::addColumn<QString>("mended");
        const auto named = [](const char *row, const QString &written, const QString &name,
                              const char *mended) {
            QTest::newRow(row) << listWith(written).toUtf8() << QStringList(u"2 "_s + name)
                               << QString::fromLatin1(mended);
        };
        named("ampersand", u"Tom & Jerry"_s, u"Tom & Jerry"_s, "ampersands 1");
        named("references", u"R&B &&amp; &nbsp; &#65; &#x; &"_s, u"R&B && &nbsp; A &#x; &"_s,
              "ampersands 5");
        named("brackets", u"A < B <1> <- ]]> <>"_s, u"A < B <1> <- ]]> <>"_s, "brackets 5");
        named("like a tag", u"Best <Sat.1> HD"_s, u"Best <Sat.1> HD"_s, "brackets 1");
        named("like an end tag", u"a </b> c"_s, u"a </b> c"_s, "brackets 1");
        named("like a comment", u"a <!-- c"_s, u"a <!-- c"_s, "brackets 1");
        named("like a tag with its end", u"a <b>c</b> < d"_s, QString(), "brackets 1");
        named("controls", u"B"_s + QChar(1) + QChar(0x1F) + QChar(0) + QChar(0xFFFF), u"B"_s,
              "controls 4");
        named("references to controls", u"B&#5;&#xFFFF;&#0;"_s, u"B"_s, "controls 3");
        const auto row = [](const char *name, const QByteArray &damaged, const char *mended) {
            QTest::newRow(name) << damaged << QStringList(u"2 B"_s) << QString::fromLatin1(mended);
        };
        const QString b = u"<vchName>B</vchName>\r\n"_s;
        const QString end = u"</ITEM>\r\n"_s;
        row("no end of a field", changed(b, u"<vchName>B\r\n"_s), "tags 1");
        row("no end of two fields",
            changed(u"<serviceType>1</serviceType>\r\n"_s + b, u"<serviceType>1\r\n<vchName>B"_s),
            "tags 2");
        row("no end of a station", changed(b + end, b), "tags 1");
        row("no end of the last station", changed(u"C</vchName>\r\n"_s + end, u"C</vchName>"_s),
            "tags 1");
        row("no end of a field nor of the station", changed(b + end, u"<vchName>B\r\n"_s),
            "tags 2");
        row("no end of the list", changed(u"</DTV>"_s, QString()), "tags 1");
        row("no bracket after a field", changed(b, u"<vchName>B</vchName\r\n<x>1</x>"_s), "tags 1");
        row("no bracket after a station's tag",
            changed(b + end + u"<ITEM>"_s, b + end + u"<ITEM"_s), "tags 1");
        row("wrong end tag", changed(b, u"<vchName>B</vchNbme>"_s), "tags 1");
        row("wrong start tag", changed(b, u"<vchNbme>B</vchName>"_s), "tags 1");
        row("two ends", changed(b + end, b + end + end), "tags 1");
        row("bracket between stations", changed(b + end, b + end + u"< <"_s), "brackets 2");
        row("controls in a tag", changed(b, u"<vch"_s + QChar(1) + u"Name>B</vchName>"_s),
            "controls 1");
        row("blank before the start", "\r\n" + changed(b, b), "strays 1");
        row("rubbish around", "x" + changed(b, b) + QByteArray("\0\0y", 3), "controls 2, strays 2");
        row("cut after the list", changed(u"</CHANNEL>\r\n</TLLDATA>"_s, QString()), "end 1");
        row("cut in the last tag", changed(u"</TLLDATA>"_s, u"</TLLD"_s), "end 1");
        row("cut after a bracket", changed(u"/TLLDATA>\r\n"_s, QString()), "end 1");
    }
    void mends()
    {
        QFETCH(const QByteArray, damaged);
        QFETCH(const QStringList, second);
        QFETCH(const QString, mended);
        const auto result = mendText(damaged);
        QVERIFY(result);
        QCOMPARE(stationsIn(result->utf8),
                 (QStringList{u"TV0 1 A"_s, u"TV0 "_s + second.first(), u"TV0 3 C"_s}));
        QCOMPARE(counts(result->mending), mended);
    }

    void cutStation_data()
    {
        QTest::addColumn<QByteArray>("cut");
        QTest::addColumn<QStringList>("last");
        QTest::addColumn<QString>("mended");
        const QString third = u"<prNum>3"_s;
        QTest::newRow("in its name")
            << cutBefore(u"C</vchName>"_s) << QStringList(u"TV0 3 "_s) << u"end 1, kept 1"_s;
        QTest::newRow("after its name")
            << cutBefore(u"</ITEM>\r\n</DTV>"_s) << QStringList(u"TV0 3 C"_s) << u"end 1, kept 1"_s;
        QTest::newRow("before its source")
            << cutBefore(third) + "<prNum>3</prNum>" << QStringList() << u"end 1, dropped 1"_s;
        QTest::newRow("before its type")
            << cutBefore(third) + "<prNum>3</prNum><sourceIndex>3</sourceIndex><serviceType>1"
            << QStringList() << u"end 1, dropped 1"_s;
        QTest::newRow("without a field")
            << cutBefore(third) << QStringList() << u"end 1, dropped 1"_s;
        QTest::newRow("right after a station without its end")
            << cutBefore(u"</ITEM>\r\n<ITEM>\r\n<prNum>3"_s) + "<ITEM>" << QStringList()
            << u"tags 1, end 1, dropped 1"_s;
    }
    void cutStation()
    {
        QFETCH(const QByteArray, cut);
        QFETCH(const QStringList, last);
        QFETCH(const QString, mended);
        const auto result = mendText(cut);
        QVERIFY(result);
        QCOMPARE(stationsIn(result->utf8), (QStringList{u"TV0 1 A"_s, u"TV0 2 B"_s} + last));
        QCOMPARE(counts(result->mending), mended);
    }

    void mixedEncoding_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("utf8");
        QTest::newRow("Latin-1") << "T\xE9l\xE9"_ba
                                 << "T\xC3\xA9l\xC3\xA9"_ba;
        QTest::newRow("one wrong byte") << "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x93\xBA\xFF"_ba
                                        << "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x93\xBA\xC3\xBF"_ba;
        QTest::newRow("cut in a character") << "\xC3\xA9\xE2\x82"_ba
                                            << "\xC3\xA9\xC3\xA2\xC2\x82"_ba;
        QTest::newRow("UTF-16") << "\xFF\xFE\xE9\0&\0"_ba
                                << "\xC3\xA9&"_ba;
    }
    void mixedEncoding()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QByteArray, utf8);
        QCOMPARE(textToMend(*FileText::decode(bytes)), utf8);
    }

    void cannotBeMended_data()
    {
        QTest::addColumn<QByteArray>("damaged");
        const QString b = u"<vchName>B</vchName>"_s;
        QTest::newRow("no text") << QByteArray();
        QTest::newRow("no tag") << "1;A;B & C\n"_ba;
        QTest::newRow("no bracket before a name") << changed(b, u"vchName>B</vchName>"_s);
        QTest::newRow("no bracket after a name") << changed(b, u"<vchNameB</vchName>"_s);
        QTest::newRow("no start of a station")
            << changed(b + u"\r\n</ITEM>\r\n<ITEM>"_s, b + u"\r\n</ITEM>"_s);
        QTest::newRow("two lists") << listWith(u"B"_s).toUtf8().repeated(2);
        QTest::newRow("no end of a document type") << "<!DOCTYPE a [ <!ELEMENT a ANY> <a>x</a>"_ba;
        QTest::newRow("an attribute twice") << changed(b, u"<vchName a='1' a='2'>B</vchName>"_s);
        QTest::newRow("deep") << "<a>"_ba.repeated(600) + "&";
    }
    void cannotBeMended()
    {
        QFETCH(const QByteArray, damaged);
        QVERIFY(!mendText(damaged));
    }

    /// Every station before the cut is read and comes back, and at most the cut one more. Nothing
    /// is made up of what the cut left of a tag.
    void cutAnywhere_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QByteArray>("whole");
        std::vector<Item> digital;
        QStringList names;
        for (int i = 1; i <= 4; ++i) {
            names += u"N%1"_s.arg(i);
            digital.push_back(makeStation(i, names.last()));
            digital.back().insert(digital.back().begin() + 1, {u"a b=\"1\" c='2'><d/></a"_s, {}});
        }
        const auto clean = [](const QString &text) {
            return text.toUtf8().replace("></a b=\"1\" c='2'><d/></a>", ">");
        };
        QTest::newRow("both sections")
            << (QStringList{u"Old"_s} + names)
            << clean(makeTLL({makeStation(1, u"Old"_s, FileSource::Analogue)}, digital));
        QTest::newRow("no analogue stations")
            << names << clean(makeTLL({}, digital)).replace("<DTV>", "<ATV>\r\n</ATV>\r\n<DTV>");
    }
    void cutAnywhere()
    {
        QFETCH(const QStringList, names);
        QFETCH(const QByteArray, whole);
        const auto namesIn = [](const QByteArray &bytes) {
            QStringList found = stationsIn(bytes);
            for (QString &station : found)
                station = station.section(u' ', 2);
            return found;
        };
        for (qsizetype size = whole.indexOf("</ITEM>"); size < whole.size(); ++size) {
            const QByteArray cut = whole.first(size);
            const auto list = channelListFromBytes(cut);
            QVERIFY2(list, cut.constData());
            QCOMPARE_LE(cut.count("</ITEM>"), list->stationCount());
            QCOMPARE_GE(cut.count("<ITEM>"), list->stationCount());
            QCOMPARE(madeUp(list->tree, cut), QString());
            QCOMPARE(repairedTLL(*list), cut);
            QCOMPARE(diagnose(*list).size(), list->parseError ? 1 : 0);
            const auto mended = mendText(textToMend(*FileText::decode(cut)));
            QVERIFY(mended);
            QStringList after = namesIn(mended->utf8);
            for (const QString &name : names.first(cut.count("</ITEM>")))
                QVERIFY2(after.removeOne(name), cut.constData());
            QVERIFY(after.size() <= 1);
        }
    }

    void longTexts_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray start = "<TLLDATA><CHANNEL><DTV><ITEM>";
        const auto row = [start](const char *name, const QByteArray &piece) {
            QTest::newRow(name) << start + "<vchName>" + piece.repeated(300'000 / piece.size());
        };
        row("ampersands", "&");
        row("brackets", "<");
        row("comments", "<!-- ");
        row("character data", "<![CDATA[");
        row("instructions", "<?a ");
        row("tags", "<a ");
        row("attributes", "<a b='");
        row("end tags", "</a>");
        row("stations", "<ITEM><a>1");
        row("ends of character data", "]]>");
        row("many names", "<a>1</b>2</a>");
    }
    void longTexts()
    {
        QFETCH(const QByteArray, text);
        QElapsedTimer timer;
        timer.start();
        const auto mended = mendText(text);
        // Far more than it takes, far less than if the time grew with the square of the length.
        QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!mended || mended->mending.endWasMissing);
    }
};

QUILLET_TEST(TextMendingTest)

#include "TextMendingTest.moc"
