#include "ListText.h"

#include "document/repair/FileDiagnosis.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The analogue station A, the digital ones B to E and, in its place, one with that name.
QString listWith(const QString &name)
{
    return makeTLL({makeStation(1, u"A"_s, FileSource::Analogue)},
                   {makeStation(1, u"B"_s), makeStation(2, u"C"_s), makeStation(3, name),
                    makeStation(4, u"D"_s), makeStation(5, u"E"_s)});
}

QString legacy(const QString &json)
{
    return u"<TLLDATA><CHANNEL><legacybroadcast>"_s + json +
           u"</legacybroadcast></CHANNEL></TLLDATA>"_s;
}

/// The line that a text stands in.
int lineOf(const QString &part, const QString &whole)
{
    return static_cast<int>(whole.left(whole.indexOf(part)).count(u'\n')) + 1;
}

QString damagedText(int line, const QString &station, int unread)
{
    return u"damaged %1 after %2, %3 unread"_s.arg(line).arg(station).arg(unread);
}

QString text(const FileFinding &finding)
{
    using Kind = FileFinding::Kind;
    switch (finding.kind) {
    case Kind::Damaged:
        return damagedText(finding.line, finding.lastStation.value_or(u"none"_s),
                           static_cast<int>(finding.unread)) +
               (finding.isJSONList ? u" of JSON"_s : QString());
    case Kind::Latin1:
        return u"Latin-1"_s;
    case Kind::Declaration:
        return u"declared "_s + finding.declared;
    case Kind::BinaryList:
        return u"binary"_s;
    case Kind::NoXML:
        return u"no XML"_s;
    case Kind::BadJSON:
        return u"JSON %1:%2"_s.arg(finding.line).arg(finding.column);
    }
    return {};
}

} // namespace

/// What is told of a file that was opened and is not as it should be.
class FileDiagnosisTest : public QObject
{
    Q_OBJECT

private slots:
    void findings_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("findings");
        QTest::addColumn<bool>("isRepairable");
        const auto damaged = [](const char *row, const QString &whole, const QString &place,
                                const QString &station, int unread, bool isRepairable) {
            QTest::newRow(row) << whole.toUtf8()
                               << QStringList(damagedText(lineOf(place, whole), station, unread))
                               << isRepairable;
        };
        const QString whole = listWith(u"x"_s);
        QString between = whole, cut = whole, first = whole;
        damaged("in a station", listWith(u"R & B"_s), u"R & B"_s, u"C"_s, 2, true);
        damaged("between stations",
                between.replace(u"<ITEM>\r\n<prNum>4"_s, u"< <ITEM>\r\n<prNum>4"_s), u"< <ITEM>"_s,
                u"x"_s, 2, true);
        damaged("in the first of a section", first.replace(u">B<"_s, u">B &<"_s), u">B &<"_s,
                u"A"_s, 4, true);
        damaged("in the first of all", QString(whole).replace(u">A<"_s, u">A &<"_s), u">A &<"_s,
                u"none"_s, 5, true);
        damaged("before the stations", QString(whole).replace(u"42XX"_s, u"4 & 2"_s), u"4 & 2"_s,
                u"none"_s, 6, true);
        damaged("at its end", cut.remove(u"</TLLDATA>\r\n"_s), u"none such"_s + cut, u"E"_s, 0,
                true);
        damaged("beyond repair", QString(whole).replace(u"<vchName>x"_s, u"<vchNamex"_s),
                u"<vchNamex"_s, u"C"_s, 2, false);
        const auto row = [](const char *name, const QByteArray &bytes, const QStringList &findings,
                            bool isRepairable = false) {
            QTest::newRow(name) << bytes << findings << isRepairable;
        };
        row("healthy", whole.toUtf8(), {});
        row("without stations", "<TLLDATA><CHANNEL/></TLLDATA>"_ba, {});
        const QChar mark(0xFEFF);
        const QString marked = mark + whole;
        row("UTF-16", QByteArray(reinterpret_cast<const char *>(marked.utf16()), 2 * marked.size()),
            {});
        row("Latin-1", listWith(u"Télé"_s).toLatin1(), {u"Latin-1"_s});
        const auto declaring = [](const QString &encoding) {
            return listWith(u"Télé"_s).replace(u"UTF-8"_s, encoding);
        };
        row("Latin-1 declared over UTF-8", declaring(u"ISO-8859-1"_s).toUtf8(),
            {u"declared ISO-8859-1"_s});
        row("UTF-16 declared over ASCII", declaring(u"UTF-16"_s).replace(u"é"_s, u"e"_s).toUtf8(),
            {u"declared UTF-16"_s});
        row("UTF-8 declared in small letters", declaring(u"utf-8"_s).toUtf8(), {});
        row("Latin-1, damaged", listWith(u"Télé & co"_s).toLatin1(),
            {damagedText(lineOf(u"Télé"_s, listWith(u"Télé"_s)), u"C"_s, 2), u"Latin-1"_s}, true);
        // A file that is cut within a character is no UTF-8 any more, but its names still are.
        row("cut in a character", listWith(u"Ä"_s).section(u'Ä', 0, 0).toUtf8() + '\xC3',
            {damagedText(lineOf(u"Ä"_s, listWith(u"Ä"_s)), u"C"_s, 0), u"Latin-1"_s}, true);
        row("binary", QByteArray("TLL\x02\0\0\x10\xFF<ITEM>\0", 16), {u"binary"_s});
        row("binary, beginning like UTF-16", "\0aB0cC"_ba.repeated(20), {u"binary"_s});
        row("binary from the second page on", QByteArray(5000, 'a') + '\0', {u"no XML"_s});
        row("text", "1;A;B\n2;C;D\n"_ba, {u"no XML"_s});
        const QString badJSON = u"{\"channelList\":[\n{\"channelName\":x}]}"_s;
        row("JSON", legacy(badJSON).toUtf8(),
            {u"JSON 2:%1"_s.arg(badJSON.section(u'\n', 1).indexOf(u'x') + 1)});
        row("JSON, cut", legacy(u"{}"_s).section(u'}', 0, 0).toUtf8(),
            {u"damaged 1 after none, 0 unread of JSON"_s, u"JSON 1:0"_s});
        row("JSON, ampersand",
            legacy(u"{\"channelList\":["_s + QString::fromLatin1(makeChannel("R & B", "1")) +
                   u"]}"_s)
                .toUtf8(),
            {u"damaged 1 after none, 0 unread of JSON"_s, u"JSON"_s}, true);
    }
    void findings()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QStringList, findings);
        QFETCH(const bool, isRepairable);
        TLLDocument document;
        QVERIFY(read(document, bytes));
        const QList<FileFinding> found = diagnose(document.list());
        QCOMPARE(found.size(), findings.size());
        for (qsizetype i = 0; i < found.size(); ++i)
            QVERIFY2(text(found[i]).startsWith(findings[i]), qPrintable(text(found[i])));
        QCOMPARE(repairedText(document.list()).has_value(), isRepairable);
    }
};

QUILLET_TEST(FileDiagnosisTest)

#include "FileDiagnosisTest.moc"
