#include "ListText.h"

#include "document/order/ReferenceOrder.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "testing/TestMain.h"
#include "xml/NodeViews.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Made-up files with all that a set or a person might put in, and random edits of them. Every
/// station has a service id of its own, by which the test tells stations apart.
class Chance
{
public:
    explicit Chance(quint32 seed) : m_random(seed) {}

    int below(int limit) { return static_cast<int>(m_random.bounded(limit)); }
    bool oneIn(int number) { return below(number) == 0; }
    template<std::size_t count>
    QString pick(const std::array<const char *, count> &texts)
    {
        return QString::fromUtf8(texts.at(static_cast<std::size_t>(below(int(count)))));
    }

    QString name()
    {
        constexpr std::array names{"Alpha", "Ünï",    "R&B",     "1<2", "a>b",  "]]>",  "\"q\"",
                                   "&amp;", "</DTV>", " blank ", "x",   "Кино", "&lt;", "<!--"};
        return pick(names);
    }

    QString xmlFile()
    {
        m_nextService = 1;
        const QString dtv = oneIn(9) ? u"<DTV n='1'>"_s : u"<DTV>"_s;
        QString digital = dtv + items(below(9), false) + u"</DTV>"_s;
        QString analogue = oneIn(2) ? QString() : u"<ATV>"_s + items(below(4), true) + u"</ATV>"_s;
        if (oneIn(9))
            std::swap(digital, analogue);
        QString text = u"<?xml version=\"1.0\"?>\n<TLLDATA>\n<CHANNEL>"_s + analogue + digital +
                       u"</CHANNEL><more/>\n</TLLDATA>\n"_s;
        if (oneIn(8))
            text.truncate(below(int(text.size())));
        if (oneIn(8))
            text.insert(below(int(text.size()) + 1), oneIn(2) ? u'&' : QChar(1));
        return text;
    }

    QString jsonFile()
    {
        QStringList channels;
        const int count = below(10);
        for (m_nextService = 1; m_nextService <= count; ++m_nextService)
            channels.append(channel());
        const QString tag = oneIn(9) ? u"<legacybroadcast n='1'>"_s : u"<legacybroadcast>"_s;
        return u"<TLLDATA><CHANNEL>\n"_s + tag + u"{\"v\":1,\"channelList\":["_s +
               channels.join(u',') + u"],\"w\":null}</legacybroadcast></CHANNEL>\n</TLLDATA>"_s;
    }

    void edit(TLLDocument &document)
    {
        StationList &list = *document.lists().list(!oneIn(4), below(4));
        if (list.empty())
            return;
        const auto place = [&] {
            return static_cast<std::size_t>(below(static_cast<int>(list.size())));
        };
        const std::size_t row = place(), other = place();
        switch (below(7)) {
        case 0:
            return list[row]->setStationName(name());
        case 1:
            return list[row]->setSkipped(oneIn(2));
        case 2:
            return list[row]->setBlocked(oneIn(2));
        case 3:
            return list[row]->setProgramNum(oneIn(5) ? below(40000) : below(10) + 1);
        case 4:
            return std::swap(list[row], list[other]);
        case 5:
            list[row] = list[other]; // as when one is moved over another of its number
            return;
        case 6:
            static_cast<void>(applyReferenceOrder(list, {{QString::number(below(9)), name(),
                                                          u"x-x-"_s + QString::number(below(9))}}));
            return;
        }
    }

private:
    QString field(const QString &key, const QString &value)
    {
        const QString element = u"<%1>%2</%1>"_s.arg(key, value.toHtmlEscaped());
        if (oneIn(40))
            return element + element;
        return oneIn(40) ? QString(element).insert(key.size() + 1, u" n='&amp;'"_s) : element;
    }

    QString items(int count, bool isAnalogue)
    {
        constexpr std::array sources{"3", "7", "1", "3", "3", "2", "9"};
        QString text;
        for (; count > 0; --count) {
            text += oneIn(20) ? u"\n<ITEM n='1'>\n"_s : u"\n<ITEM>\n"_s;
            text += field(u"prNum"_s, QString::number(below(12) + (oneIn(4) ? 16384 : 0)));
            text += field(u"sourceIndex"_s, isAnalogue && !oneIn(6) ? u"2"_s : pick(sources));
            text += field(u"serviceType"_s, oneIn(4) ? u"2"_s : u"1"_s);
            text += field(u"service_id"_s, QString::number(m_nextService++));
            text += field(u"vchName"_s, name()) + u"</ITEM>"_s;
            if (oneIn(20))
                text += oneIn(2) ? u"<!-- <ITEM> </DTV> -->"_s : u"<extra>1</extra>"_s;
        }
        return text + u'\n';
    }

    QString channel()
    {
        constexpr std::array sources{"CABLE DIGITAL", "SATELLITE DIGITAL", "?"};
        const int number = below(9) + (oneIn(4) ? 16384 : 0);
        return u"{\"channelName\":\"c%1\",\"majorNumber\":%2,\"serviceType\":%3,\"sourceIndex\":"
               "\"%4\",\"SVCID\":\"%1\"}"_s.arg(QString::number(m_nextService),
                                                QString::number(number), oneIn(4) ? u"2"_s : u"1"_s,
                                                pick(sources));
    }

    QRandomGenerator m_random;
    int m_nextService = 1;
};

/// The service ids of all stations that were read, or of all channels, each as often as it is
/// there.
QStringList services(const TLLDocument &document)
{
    QStringList ids;
    if (document.isLegacyFormat()) {
        for (const Value &channel : document.list().broadcast.channelList())
            ids.append(*channel.dictionary()->string(u"SVCID"));
    } else {
        for (const FiledStation &filed : document.lists().roll()) {
            const Value *id = filed.station->entry().find(u"service_id");
            const Dictionary *brokenOff = id ? id->dictionary() : nullptr;
            ids.append(brokenOff ? innerText(*brokenOff).value_or(QString())
                                 : filed.station->service_id().value_or(QString()));
        }
    }
    ids.sort();
    return ids;
}

/// The same of a file; none when it cannot be opened.
std::optional<QStringList> servicesIn(const QByteArray &bytes)
{
    TLLDocument document;
    return read(document, bytes) ? std::optional(services(document)) : std::nullopt;
}

} // namespace

/// What must hold of saving whatever is in a file and is done to it.
class RandomSavesTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsLostUnasked_data()
    {
        QTest::addColumn<bool>("isJSON");
        QTest::newRow("XML") << false;
        QTest::newRow("JSON") << true;
    }
    void nothingIsLostUnasked()
    {
        QFETCH(const bool, isJSON);
        int opened = 0, losses = 0;
        for (quint32 seed = 0; seed < 800; ++seed) {
            Chance chance(seed);
            const QString text = isJSON ? chance.jsonFile() : chance.xmlFile();
            TLLDocument document;
            if (!read(document, text) || document.isLegacyFormat() != isJSON)
                continue;
            ++opened;
            const QStringList before = services(document);
            for (int round = 0; round < 3; ++round) {
                const QByteArray context =
                    u"seed %1, round %2:\n%3"_s.arg(seed).arg(round).arg(text).toUtf8();
                const QByteArray plain = written(document);
                const Rehearsal rehearsal = rehearse(document.list(), plain);
                const std::optional<QStringList> after = servicesIn(plain);
                const bool isLost = after != before;
                losses += isLost;
                const bool isSaid = rehearsal.isRefused || rehearsal.missing.count > 0 ||
                                    rehearsal.doubled.count > 0 || rehearsal.changed.count > 0 ||
                                    rehearsal.losesSurroundings || rehearsal.losesTail;
                QVERIFY2(isSaid || !isLost, context.constData());

                const QByteArray repaired = repairedTLL(document.list());
                const Rehearsal ofRepaired = rehearse(document.list(), repaired);
                QVERIFY2(servicesIn(repaired) == before, context.constData());
                QVERIFY2(!ofRepaired.isRefused && ofRepaired.missing.count == 0 &&
                             ofRepaired.doubled.count == 0 && !ofRepaired.losesTail &&
                             !ofRepaired.losesSurroundings && !ofRepaired.losesExtras,
                         context.constData());
                QVERIFY2(ofRepaired.changed.count == 0 || document.list().parseError,
                         context.constData());
                for (int i = chance.below(6); i > 0; --i)
                    chance.edit(document);
                document.switchToSource(chance.below(4));
            }
        }
        // Both the common and the uncommon must have been met.
        QVERIFY2(opened > 400 && losses > 100 && losses < 3 * opened,
                 qPrintable(u"%1 opened, %2 losses"_s.arg(opened).arg(losses)));
    }
};

QUILLET_TEST(RandomSavesTest)

#include "RandomSavesTest.moc"
