#include "document/list/ChannelList.h"
#include "document/order/ReferenceOrder.h"
#include "document/read/ListReading.h"
#include "testing/NothingLost.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

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
        constexpr std::array marks{"&", "<", ">", "/", "\"", "]", "!", "?", "-", "\x01", "a"};
        for (int damage = oneIn(6) ? below(3) : -1; damage >= 0; --damage)
            text.insert(below(int(text.size()) + 1), pick(marks));
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

    void edit(ChannelList &list)
    {
        StationList &stations = *list.lists.list(!oneIn(4), below(4));
        if (stations.empty())
            return;
        const auto place = [&] {
            return static_cast<std::size_t>(below(static_cast<int>(stations.size())));
        };
        const std::size_t row = place(), other = place();
        switch (below(8)) {
        case 0:
            return stations[row]->setStationName(name());
        case 1:
            return stations[row]->setSkipped(oneIn(2));
        case 2:
            return stations[row]->setBlocked(oneIn(2));
        case 3:
            return stations[row]->setProgramNum(oneIn(5) ? below(40000) : below(10) + 1);
        case 4:
            return std::swap(stations[row], stations[other]);
        case 5:
            stations[row] = stations[other]; // as when one is moved over another of its number
            return;
        case 6: // as when it becomes what it was in another file
            return stations[row]->setIsRadio(oneIn(2));
        case 7:
            static_cast<void>(applyReferenceOrder(
                stations,
                {{QString::number(below(9)), name(), u"x-x-"_s + QString::number(below(9))}}));
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
        const QByteArray id = QByteArray::number(m_nextService);
        return QString::fromLatin1(makeChannel("c" + id, QByteArray::number(number),
                                               {.source = pick(sources).toLatin1(),
                                                .serviceType = oneIn(4) ? 2 : 1,
                                                .more = ",\"SVCID\":\"" + id + '"'}));
    }

    QRandomGenerator m_random;
    int m_nextService = 1;
};

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
        int opened = 0, losses = 0, damaged = 0;
        for (quint32 seed = 0; seed < (isJSON ? 300 : 800); ++seed) {
            Chance chance(seed);
            const QByteArray text = (isJSON ? chance.jsonFile() : chance.xmlFile()).toUtf8();
            std::optional<ChannelList> list = channelListFromBytes(text);
            if (!list || list->isLegacyFormat != isJSON)
                continue;
            ++opened;
            damaged += list->parseError.has_value();
            const char *fault = faultOfReading(*list);
            for (int round = 0; round < 3 && !fault; ++round) {
                fault = faultOfSaving(*list, true, chance.below(4), &losses);
                fault = fault ? fault : faultOfBringingBack(*list);
                for (int i = chance.below(6); i > 0; --i)
                    chance.edit(*list);
            }
            QVERIFY2(!fault, (QByteArray::number(seed) + ": " + fault + '\n' + text).constData());
        }
        // Both the common and the uncommon must have been met.
        QVERIFY2(
            opened > 200 && losses > 100 && losses < 3 * opened && (isJSON || damaged > 100),
            qPrintable(u"%1 opened, %2 losses, %3 damaged"_s.arg(opened).arg(losses).arg(damaged)));
    }
};

QUILLET_TEST(RandomSavesTest)

#include "RandomSavesTest.moc"
