#include "KilledEditing.h"

#include "document/TLLDocument.h"
#include "files/FileOperations.h"
#include "framework/RecoveryKeeper.h"
#include "testing/TLLText.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <random>

using namespace quillet;
using namespace quillet::testing;
using namespace std::chrono_literals;

namespace {

/// How soon edits are kept, and what follows for a test, all in milliseconds.
struct Pace
{
    RecoveryTiming timing;
    int pause;       ///< at most between two edits
    int longest;     ///< that a process lives
    qint64 mostLost; ///< of edits, before a kill
    int sessions;    ///< side by side, of each list
};

/// Edits of one list, from one killed process to the next.
struct Session
{
    explicit Session(const char *sample)
    {
        writeFile(path("list"), readSample(QLatin1String(sample)));
    }

    [[nodiscard]] QString path(const char *name) const
    {
        return folder.filePath(QLatin1String(name));
    }

    void start(const Pace &pace)
    {
        QStringList arguments{path("recovery"), path("list"), path("log")};
        for (const qint64 number : {qint64(pace.pause), qint64(pace.timing.idle.count()),
                                    qint64(pace.timing.most.count())})
            arguments.append(QString::number(number));
        process.start(QStringLiteral(QUILLET_EDIT_FOREVER), arguments);
    }

    QTemporaryDir folder;
    QProcess process;
    qint64 killAt = 0;
};

/// The states in the log of a session, and which of them is the last that was kept.
class States
{
public:
    explicit States(const QByteArray &log) : m_lines(log.split('\n')) { m_lines.removeLast(); }

    /// False when it was never there.
    bool keep(const QByteArray &state)
    {
        bool isKnown = false;
        for (qsizetype i = 0; i < m_lines.size(); ++i) {
            if (m_lines[i].split(' ').at(1) != state)
                continue;
            isKnown = true;
            m_kept = std::max(m_kept, i);
        }
        return isKnown;
    }
    /// The same for what was saved as those bytes.
    bool keepSaved(const QByteArray &bytes)
    {
        const auto saved =
            std::find_if(m_lines.rbegin(), m_lines.rend(), [&bytes](const QByteArray &line) {
                return line.endsWith(digestOf(bytes));
            });
        return saved != m_lines.rend() && keep(saved->split(' ').at(1));
    }
    /// When the first state was there that is lost.
    [[nodiscard]] std::optional<qint64> firstLost() const
    {
        if (m_kept + 1 == m_lines.size())
            return {};
        return m_lines[m_kept + 1].split(' ').front().toLongLong();
    }

private:
    QByteArrayList m_lines;
    qsizetype m_kept = -1;
};

} // namespace

/// Other processes edit lists over and over, save some, and are killed in the middle of it.
class KilledEditingTest : public QObject
{
    Q_OBJECT

private slots:
    /// QUILLET_KILLS gives another number of kills, also at the program's own pace.
    void hardlyAnEditIsLost_data()
    {
        QTest::addColumn<Pace>("pace");
        QTest::newRow("hurried") << Pace{{30ms, 150ms}, 60, 3500, 2000, 1};
        if (qEnvironmentVariableIsSet("QUILLET_KILLS"))
            QTest::newRow("as in the program") << Pace{{}, 1200, 30'000, 15'000, 3};
    }
    void hardlyAnEditIsLost()
    {
        QFETCH(const Pace, pace);
        const int kills = std::max(8, qEnvironmentVariableIntValue("QUILLET_KILLS"));
        std::vector<std::unique_ptr<Session>> sessions;
        for (int i = 0; i < pace.sessions; ++i) {
            for (const char *list :
                 {"cable.tll", "satellite-json.tll", "antenna.tll", "satellite.tll"})
                sessions.push_back(std::make_unique<Session>(list));
        }
        std::mt19937 random(std::random_device{}());
        std::uniform_int_distribution<qint64> lifetime(0, pace.longest);
        int broughtBack = 0;
        qint64 oldestLost = 0;
        int killed = 0;
        while (killed < kills) {
            for (const auto &session : sessions) {
                session->start(pace);
                QVERIFY(session->process.waitForReadyRead());
                session->killAt = now() + lifetime(random);
            }
            std::sort(sessions.begin(), sessions.end(),
                      [](const auto &a, const auto &b) { return a->killAt < b->killAt; });
            for (const auto &session : sessions) {
                QThread::msleep(
                    static_cast<unsigned long>(std::max<qint64>(0, session->killAt - now())));
                session->killAt = now();
                QVERIFY2(!session->process.waitForFinished(0),
                         session->process.readAllStandardError().constData());
                session->process.kill();
                QVERIFY(session->process.waitForFinished());
                ++killed;
            }
            for (const auto &session : sessions) {
                States states(contentOf(session->path("log")));
                QVERIFY2(states.keepSaved(contentOf(session->path("list"))),
                         "no file that was saved");
                FileOperations operations;
                RecoveryStore store(session->path("recovery"), operations);
                const std::vector<RecoveryStore::Leftover> leftovers = store.leftovers();
                QVERIFY(leftovers.size() <= 1);
                for (const RecoveryStore::Leftover &leftover : leftovers) {
                    TLLDocument document;
                    Error error;
                    QVERIFY2(leftover.problem.isEmpty() &&
                                 RecoveryKeeper::restore(document, leftover, error),
                             qPrintable(leftover.problem + error.text()));
                    QVERIFY2(states.keep(digestOf(document.list())), "it was never like that");
                    ++broughtBack;
                }
                oldestLost = std::max(oldestLost, session->killAt -
                                                      states.firstLost().value_or(session->killAt));
                QVERIFY2(oldestLost <= pace.mostLost, qPrintable(QString::number(oldestLost)));
            }
        }
        QVERIFY(broughtBack > killed / 4); // otherwise the kills came at no moment that matters
        qInfo("%d of %d lists were brought back, the others saved; the oldest edit lost was made "
              "%lld ms before the kill",
              broughtBack, killed, static_cast<long long>(oldestLost));
    }
};

QUILLET_TEST(KilledEditingTest)

#include "KilledEditingTest.moc"
