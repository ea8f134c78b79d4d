#include "framework/UndoHistory.h"

#include "testing/TestMain.h"

#include <QSignalSpy>
#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Adds a number to a sum.
class Addition : public UndoStep
{
public:
    Addition(int &sum, int number, std::size_t bytes) : m_sum(sum), m_number(number), m_bytes(bytes)
    {
        setText(QString::number(number));
        m_sum += number;
    }
    void undo() override
    {
        m_isDone = false;
        m_sum -= m_number;
    }
    void redo() override
    {
        if (!std::exchange(m_isDone, true))
            m_sum += m_number;
    }
    [[nodiscard]] std::size_t byteCount() const override { return m_bytes; }
    [[nodiscard]] std::unique_ptr<UndoStep> copy() const override
    {
        auto copied = std::make_unique<Addition>(m_sum, m_number, m_bytes);
        m_sum -= m_number;
        return copied;
    }

private:
    int &m_sum;
    int m_number;
    std::size_t m_bytes;
    bool m_isDone = true;
};

} // namespace

/// The bound on memory, and what it must not do to the saved state.
class UndoHistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void forgetsTheOldest_data()
    {
        QTest::addColumn<int>("saved"); // after so many of 100 steps
        QTest::addColumn<bool>("isKept");
        QTest::addRow("at the start") << 0 << false;
        QTest::addRow("among those that go") << 30 << false;
        QTest::addRow("among those that stay") << 96 << true;
        QTest::addRow("at the end") << 100 << true;
    }
    void forgetsTheOldest()
    {
        QFETCH(int, saved);
        QFETCH(bool, isKept);
        int sum = 0;
        UndoHistory history(80);
        for (int step = 1; step <= 100; ++step) {
            history.push(std::make_unique<Addition>(sum, step, 10));
            QVERIFY(history.byteCount() <= 80);
            if (step == saved)
                history.setClean();
        }
        const int kept = history.stack().count();
        QVERIFY(kept >= 6 && kept <= 8);
        int clean = -1;
        for (int index = kept; index >= 0; --index) {
            history.goTo(index);
            const int step = 100 - kept + index;
            QCOMPARE(sum, step * (step + 1) / 2);
            if (history.isClean())
                clean = step;
        }
        QCOMPARE(clean, isKept ? saved : -1);
        history.goTo(kept);
        QCOMPARE(sum, 5050);
    }

    /// One that is larger than all that may be kept cannot be undone, and nothing else goes wrong.
    void stepThatIsTooLarge()
    {
        int sum = 0;
        UndoHistory history(80);
        history.push(std::make_unique<Addition>(sum, 1, 10));
        history.push(std::make_unique<Addition>(sum, 2, 100));
        QVERIFY(!history.isClean() && !history.stack().canUndo());
        history.push(std::make_unique<Addition>(sum, 3, 10));
        history.undo();
        QCOMPARE(sum, 3);
        QVERIFY(!history.isClean());
        history.clear();
        QVERIFY(history.isClean() && history.byteCount() == 0);
    }

    /// What was undone gives way to what is done instead, with its memory.
    void countsWhatThereIs()
    {
        int sum = 0;
        UndoHistory history(1000);
        for (int step = 0; step < 3; ++step)
            history.push(std::make_unique<Addition>(sum, 1, 100));
        QSignalSpy jumped(&history, &UndoHistory::jumped);
        history.goTo(0);
        QCOMPARE(jumped.count(), 1);
        history.push(std::make_unique<Addition>(sum, 5, 7));
        QCOMPARE(history.byteCount(), std::size_t{7});
        QVERIFY(!history.stack().canRedo());
        QCOMPARE(sum, 5);
    }
};

QUILLET_TEST(UndoHistoryTest)

#include "UndoHistoryTest.moc"
