#include "EditorFixture.h"

#include "testing/TestMain.h"

#include <QMultiHash>
#include <QRandomGenerator>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// Whatever is moved where, with any filter: nothing may get lost, doubled or out of order.
class RandomMovesTest : public QObject
{
    Q_OBJECT

private slots:
    void listsStayWhole_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 4; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void listsStayWhole()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        Editor editor(randomStations(random));
        const Members before = members(editor.document);
        for (int step = 0; step < 200; ++step) {
            act(editor, random);
            const Members now = members(editor.document);
            QVERIFY2(now == before, qPrintable(u"step %1"_s.arg(step)));
            for (const bool isTV : {true, false}) {
                for (int source = 0; source < stationSourceCount; ++source)
                    checkOrder(*editor.document.lists().list(isTV, source));
            }
            checkRows(editor);
            if (QTest::currentTestFailed())
                return;
        }
    }

private:
    /// Every station with the list it stands in.
    using Members = QMultiHash<const LGStation *, int>;

    static std::vector<Item> randomStations(QRandomGenerator &random)
    {
        constexpr std::array sources{FileSource::Cable, FileSource::Satellite, FileSource::Antenna,
                                     FileSource::Analogue};
        constexpr std::array types{1, 2, 12, 25, 31};
        std::vector<Item> stations;
        for (int i = 0; i < 120; ++i) {
            const int number = random.bounded(90);
            const QString name = QString(QChar(u'a' + i % 7)) + QString::number(i);
            const FileSource source = sources.at(random.bounded(quint32{sources.size()}));
            const int type = types.at(random.bounded(quint32{types.size()}));
            stations.push_back(type == 2 ? makeRadio(number, name, source)
                                         : makeStation(number, name, source, type));
        }
        return stations;
    }

    static Members members(const TLLDocument &document)
    {
        Members members;
        for (int list = 0; list < 2 * stationSourceCount; ++list) {
            for (const StationPtr &station : *document.lists().list(list % 2 == 0, list / 2))
                members.insert(station.get(), list);
        }
        return members;
    }

    static void checkOrder(const StationList &stations)
    {
        qint64 last = 0;
        for (const StationPtr &station : stations) {
            QVERIFY2(station->progNum() > last, qPrintable(station->progNumString()));
            QCOMPARE((station->getRawProgNum() & LGStation::radioMark) != 0, station->isRadio());
            last = station->progNum();
        }
    }

    /// The table shows what the controller says.
    static void checkRows(const Editor &editor)
    {
        const StationList &rows = editor.controller.currentList();
        QCOMPARE(editor.model.rowCount(), int(rows.size()));
        for (int row = 0; row < editor.model.rowCount(); ++row) {
            const LGStation &station = *rows[std::size_t(row)];
            QCOMPARE(editor.model.index(row, 0).data().toString(), station.progNumString());
            QCOMPARE(editor.model.index(row, 1).data().toString(), station.stationName());
        }
    }

    static void act(Editor &editor, QRandomGenerator &random)
    {
        const auto count = static_cast<int>(editor.controller.currentList().size());
        QList<qsizetype> rows;
        for (int row = 0; row < count; ++row) {
            if (random.bounded(4) == 0)
                rows.append(row);
        }
        const int target = random.bounded(20) == 0 ? 12000 : random.bounded(-3, 120);
        switch (random.bounded(11)) {
        case 0:
            editor.search(random.bounded(2) == 0 ? QString()
                                                 : QString(QChar(u'a' + random.bounded(9))));
            break;
        case 1:
            editor.controller.typeFilterClicked(random.bounded(typeFilterCount));
            break;
        case 2:
            editor.clickSegment(random.bounded(stationSourceCount));
            break;
        case 3:
            (editor.controller.*(random.bounded(3) == 0 ? &ViewController::useRadioClicked
                                                        : &ViewController::useTVClicked))();
            break;
        case 4:
            editor.controller.fillGapsClicked(random.bounded(2) == 0);
            break;
        case 5:
            if (!rows.isEmpty())
                editor.controller.acceptDrop({{}, rows, true, true, random.bounded(count + 1)});
            break;
        case 6:
            if (count > 0)
                editor.controller.moveElements(random.bounded(count), 1, target);
            break;
        case 7:
            editor.outlets.selectRows(rows);
            (editor.controller.*(random.bounded(2) == 0
                                     ? &ViewController::skipSelectedItems
                                     : &ViewController::changeChildLockForSelectedItems))();
            break;
        case 8:
            if (count > 0)
                editor.controller.setObjectValue(QString::number(target), u"progNum"_s,
                                                 random.bounded(count));
            break;
        default:
            editor.outlets.selectRows(rows);
            editor.controller.moveSelectedElements(rows, target);
        }
    }
};

QUILLET_TEST(RandomMovesTest)

#include "RandomMovesTest.moc"
