#include "model/LGStation.h"
#include "model/StationSource.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

/// What the type filter sees in a station.
enum Class { SD, HD, UHD, NoTV, Radio };
enum Mode { TV, IsRadio, Neither };

struct Row
{
    const char *code;
    const char *channelType;
    const char *display;
    Mode mode;
    Class filterClass;
    // The same in the antenna's list.
    const char *antennaDisplay = display;
    Class antennaClass = filterClass;
};

// The service types that the program knows (ETSI EN 300 468 and the providers' own), then unknown
// ones, then what is no number.
// clang-format off
const Row rows[] = {
    {"0", "?", "---", TV, NoTV}, {"1", "SD-TV", "", TV, SD, "DVB-T2"}, {"2", "Radio", "", IsRadio, Radio},
    {"3", "?", "?", TV, NoTV}, {"4", "VoD", "VoD", TV, SD}, {"5", "VoD", "VoD", TV, SD},
    {"6", "?", "?", TV, NoTV}, {"10", "Radio", "", IsRadio, Radio}, {"11", "?", "?", TV, NoTV},
    {"12", "<DATA>", "<DATA>", TV, NoTV}, {"16", "DVB-T2", "", TV, SD, "DVB-T2", HD},
    {"17", "?", "?", TV, NoTV}, {"22", "SD_TV", "SD", TV, SD}, {"23", "VoD", "VoD", TV, SD},
    {"24", "VoD", "VoD", TV, SD}, {"25", "HD-TV", "HD", TV, HD}, {"26", "VoD", "VoD", TV, HD},
    {"27", "VoD", "VoD", TV, HD}, {"31", "UHD-TV", "UHD", TV, UHD}, {"128", "<DATA>", "<DATA>", TV, NoTV},
    {"129", "<DATA>", "<DATA>", TV, NoTV}, {"192", "<DATA>", "<DATA>", TV, NoTV},
    {"195", "VoD", "VoD", TV, SD}, {"198", "Radio", "", IsRadio, Radio}, {"201", "VoD", "VoD", TV, SD},
    {"211", "Sky Ticket", "VoD", TV, HD}, {"99", "?", "?", Neither, SD}, {"-1", "?", "?", Neither, SD},
    {"4294967297", "?", "?", Neither, SD}, {"", "?", "?", Neither, SD}, {"1.0", "?", "?", Neither, SD},
};
// clang-format on

} // namespace

class ClassificationTest : public QObject
{
    Q_OBJECT

private slots:
    void serviceType_data()
    {
        QTest::addColumn<const Row *>("row");
        for (const Row &row : rows)
            QTest::addRow("code \"%s\"", row.code) << &row;
    }

    void serviceType()
    {
        QFETCH(const Row *, row);
        const LGStation station({{u"serviceType"_s, QString::fromLatin1(row->code)}}, 0);
        QCOMPARE(station.isTVStation(), row->mode == TV);
        QCOMPARE(station.isRadioStation(), row->mode == IsRadio);
        QCOMPARE(station.channelType(), QString::fromLatin1(row->channelType));
        for (int source = 0; source < 4; ++source) {
            QCOMPARE(station.channelTypeForDisplay(source),
                     QString::fromLatin1(source == 2 ? row->antennaDisplay : row->display));
            const Class c = source == 2 ? row->antennaClass : row->filterClass;
            const bool isTV = c == SD || c == HD || c == UHD;
            const bool passed[] = {c != Radio, c == SD, c == HD, c == UHD, isTV, c == NoTV};
            for (int filter = 0; filter < 6; ++filter)
                QCOMPARE(station.matchesType(filter, source), passed[filter]);
        }
    }

    void sourceIndex()
    {
        const std::pair<const char *, int> known[] = {{"1", 2}, {"2", 3},  {"3", 0},
                                                      {"7", 1}, {"+7", 1}, {"4", 3},
                                                      {"", 3},  {"7x", 3}, {"4294967303", 3}};
        for (const auto &[given, source] : known) {
            const LGStation station({{u"sourceIndex"_s, QString::fromLatin1(given)}}, 0);
            QVERIFY2(station.mappedSourceIndex() == source, given);
        }
        QCOMPARE(LGStation({}, 0).mappedSourceIndex(), 3);
    }
};

QUILLET_TEST(ClassificationTest)

#include "ClassificationTest.moc"
