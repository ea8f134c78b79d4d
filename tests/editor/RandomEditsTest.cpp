#include "EditorFixture.h"

#include "document/compare/ListComparison.h"
#include "document/read/ListReading.h"
#include "document/repair/RepairedWriter.h"
#include "document/write/TLLWriter.h"
#include "testing/NothingLost.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryFile>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Everything of a document that an edit may change, in the order in which it is.
struct State
{
    std::vector<StationList> lists;
    QByteArray entries; ///< with the order of their fields
    QByteArray bytes;

    explicit State(TLLDocument &document) : entries(stationsText(document.list()))
    {
        for (int list = 0; list < 2 * stationSourceCount; ++list)
            lists.push_back(*document.lists().list(list % 2 == 0, list / 2));
        // Of the channels only those of one list are written.
        bytes = writeTLL(document.list(), document.lists().list(true, 1));
    }
    bool operator==(const State &) const = default;
};

} // namespace

/// Edits of every kind in both variants of the file, undone and made again at random: every state
/// on the way back and forth is the one that was there before, to the last byte, and recovery would
/// bring it back.
class RandomEditsTest : public QObject
{
    Q_OBJECT

private slots:
    void historyLeadsBackAndForth_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::addColumn<bool>("isJSON");
        for (quint32 seed = 1; seed <= 8; ++seed) {
            QTest::addRow("items, seed %u", seed) << seed << false;
            QTest::addRow("channels, seed %u", seed) << seed << true;
        }
    }
    void historyLeadsBackAndForth()
    {
        QFETCH(quint32, seed);
        QFETCH(bool, isJSON);
        m_random.seed(seed);
        m_putBack = 0;
        Editor editor({});
        editor.show(isJSON ? channels() : items());
        const QUndoStack &steps = editor.document.history().stack();
        std::vector<State> states{State(editor.document)}; // by the number of steps done
        int saved = 0, made = 0;
        for (int turn = 0; turn < 150; ++turn) {
            const int before = steps.index();
            const bool isEdit = act(editor);
            const State now(editor.document);
            const auto index = static_cast<std::size_t>(steps.index());
            if (steps.index() == before + 1 && isEdit) {
                saved = saved > before ? -1 : saved;
                states.erase(states.begin() + before + 1, states.end());
                states.push_back(now);
                ++made;
            } else if (m_mayMerge && steps.index() == before && steps.index() != saved) {
                states[index] = now;
            }
            QVERIFY2(now == states.at(index), qPrintable(u"turn %1"_s.arg(turn)));
            if (const char *fault =
                    turn % 5 == 0 ? faultOfBringingBack(editor.document.list()) : nullptr)
                QFAIL(qPrintable(u"turn %1: "_s.arg(turn) + QLatin1String(fault)));
            QCOMPARE(states.size(), static_cast<std::size_t>(steps.count()) + 1);
            if (m_random.bounded(12) == 0) {
                editor.document.setDirtyFlag(false); // as a save does
                saved = steps.index();
            }
            QCOMPARE(editor.document.isDirty(), steps.index() != saved);
        }
        QVERIFY(made > 20 && steps.count() > 5 && m_putBack > 0);
        const auto goTo = [&](int index) {
            editor.controller.undoing().goToStep(index);
            QCOMPARE(steps.index(), index);
            QVERIFY2(State(editor.document) == states[static_cast<std::size_t>(index)],
                     qPrintable(u"step %1"_s.arg(index)));
            QCOMPARE(editor.document.isDirty(), index != saved);
        };
        for (int index = steps.index(); index > 0; --index)
            goTo(index - 1);
        for (int index = 0; index < steps.count(); ++index)
            goTo(index + 1);
        for (int jump = 0; jump < 10; ++jump)
            goTo(m_random.bounded(steps.count() + 1));
    }

private:
    QRandomGenerator m_random;
    bool m_mayMerge = false; ///< what was done last, with the step before
    QByteArray m_version;    ///< what the list was written as at some time
    int m_putBack = 0;       ///< versions that were

    bool oneIn(int count) { return m_random.bounded(count) == 0; }

    /// With numbers as no television writes them.
    QString number()
    {
        const QString plain = QString::number(m_random.bounded(1, 40));
        return oneIn(5) ? u"+0"_s + plain : oneIn(9) ? u"x"_s : plain;
    }

    QByteArray items()
    {
        std::vector<Item> stations;
        for (int i = 0; i < 40; ++i) {
            const QString name = QString(QChar(u'a' + i % 7)) + QString::number(i);
            Item item = oneIn(5) ? makeRadio(i, name)
                                 : makeStation(i, name,
                                               oneIn(3) ? FileSource::Analogue : FileSource::Cable);
            if (oneIn(3))
                item.front().second = number();
            if (oneIn(3))
                item.push_back({u"isSkipped"_s, oneIn(2) ? u"7"_s : u""_s});
            item.push_back({u"service_id"_s, QString::number(i)});
            stations.push_back(item);
        }
        return fileOf(stations);
    }

    QByteArray channels()
    {
        QByteArrayList channels;
        constexpr std::array more{"", ",\"skipped\":true", ",\"userSelCHNo\":true,\"skipped\":1",
                                  ",\"userEditChNumber\":1,\"userSelCHNo\":1",
                                  ",\"scrambled\":true"};
        for (int i = 0; i < 40; ++i) {
            ChannelOptions options;
            options.source = oneIn(4) ? "CABLE ANALOG" : "SATELLITE DIGITAL";
            options.more = QByteArray(more.at(m_random.bounded(quint32{more.size()}))) +
                           ",\"SVCID\":\"" + QByteArray::number(i) + '"';
            channels.append(makeChannel("c" + QByteArray::number(i),
                                        oneIn(5) ? "2.0" : QByteArray::number(m_random.bounded(60)),
                                        options));
        }
        return "<TLLDATA><CHANNEL>\n<legacybroadcast>{\"channelList\":[" + channels.join(',') +
               "]}</legacybroadcast></CHANNEL>\n</TLLDATA>";
    }

    /// Returns whether it was an edit, which may have come to nothing.
    bool act(Editor &editor)
    {
        ViewController &controller = editor.controller;
        const auto count = static_cast<int>(controller.currentList().size());
        QList<qsizetype> rows;
        for (int row = 0; row < count; ++row) {
            if (oneIn(count > 20 ? 9 : 3))
                rows.append(row);
        }
        const int target = oneIn(20) ? 12000 : m_random.bounded(-3, 60);
        const int action = m_random.bounded(16);
        m_mayMerge = action == 5 || action == 6;
        if (!m_mayMerge || oneIn(2))
            editor.outlets.selectRows(rows);
        switch (action) {
        case 0:
            editor.search(oneIn(2) ? QString() : QString(QChar(u'a' + m_random.bounded(9))));
            return false;
        case 1:
            editor.clickSegment(oneIn(2) ? 1 : m_random.bounded(stationSourceCount));
            return false;
        case 2:
            (controller.*
             (oneIn(3) ? &ViewController::useRadioClicked : &ViewController::useTVClicked))();
            return false;
        case 3:
            (controller.undoing().*(oneIn(2) ? &UndoCommands::undo : &UndoCommands::redo))();
            return false;
        case 4:
            controller.arrange(oneIn(2) ? Arrangement::ToTop : Arrangement::ToBottom);
            return true;
        case 5:
            controller.arrange(Arrangement::Up);
            return true;
        case 6:
            controller.arrange(Arrangement::Down);
            return true;
        case 7:
            controller.fillGapsClicked(oneIn(3));
            return true;
        case 8:
            (controller.*(oneIn(2) ? &ViewController::skipSelectedItems
                                   : &ViewController::changeChildLockForSelectedItems))();
            return true;
        case 9:
            controller.setObjectValue(QString::number(target), u"progNum"_s,
                                      oneIn(2) ? 0 : count - 1);
            return true;
        case 10:
            controller.setObjectValue(u"n%1"_s.arg(m_random.bounded(5)), u"progName"_s,
                                      m_random.bounded(count + 1));
            return true;
        case 11:
            order(editor);
            return true;
        case 12:
        case 15:
            putBack(editor);
            return true;
        case 13:
            editor.outlets.selectRows(rows.mid(0, 2));
            controller.arrange(Arrangement::Swap);
            return true;
        case 14:
            controller.arrangeByKeys(
                {{oneIn(2) ? ArrangeBy::Name : ArrangeBy::Encryption, oneIn(2)},
                 {ArrangeBy::Number, oneIn(2)}});
            return true;
        default:
            controller.moveSelectedElements(rows, target);
            return true;
        }
    }

    /// What was kept last time, and keeps what there is now.
    void putBack(Editor &editor)
    {
        const QByteArray now = repairedTLL(editor.document.list());
        const QByteArray bytes = std::exchange(m_version, now);
        auto version = channelListFromBytes(bytes);
        if (!version || !editor.controller.putBack(*version, u"name"_s))
            return;
        ++m_putBack;
        version = channelListFromBytes(bytes);
        QVERIFY(compare(editor.document.lists(), version->lists).isEmpty());
    }

    /// With numbers given twice, so that stations are moved in the place of others.
    void order(Editor &editor)
    {
        QByteArray lines;
        for (int i = 0; i < 5; ++i)
            lines += QByteArray::number(m_random.bounded(1, 9)) + ";n;1-1-" +
                     QByteArray::number(m_random.bounded(40)) + "\n";
        QTemporaryFile file(QDir::tempPath() + u"/XXXXXX.txt"_s);
        QVERIFY(file.open() && file.write(lines) == lines.size() && file.flush());
        editor.controller.ordering().applyFile(file.fileName());
    }
};

QUILLET_TEST(RandomEditsTest)
#include "RandomEditsTest.moc"
