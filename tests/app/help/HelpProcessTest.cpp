#include "app/help/HelpProcess.h"

#include "app/help/SystemServices.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#ifdef QUILLET_HAS_ENGINE
#include <csignal>
#endif

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

const QUrl page(u"file:///guide/a%20page.html"_s);

class FakeServices : public SystemServices
{
public:
    bool openUrl(const QUrl &url) override
    {
        opened.append(url);
        return true;
    }
    void openUrlWith(const QUrl &, const QString &) override {}
    [[nodiscard]] std::optional<QString> findChrome() const override { return {}; }

    QList<QUrl> opened;
};

/// A process that does as the script says in place of the help window.
std::unique_ptr<HelpProcess> standIn(const QString &script, SystemServices &services)
{
    return std::make_unique<HelpProcess>(u"/bin/sh"_s, QStringList{u"-c"_s, script}, services);
}

} // namespace

class HelpProcessTest : public QObject
{
    Q_OBJECT

private slots:
    void opensThePageElsewhere_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("timesOpened");
        QTest::newRow("fails at once") << u"exit 1"_s << 1;
        QTest::newRow("ends without a word") << u"exit 0"_s << 1;
        QTest::newRow("aborts while it starts") << u"read line; kill -ABRT $$"_s << 1;
        QTest::newRow("dies under the reader") << u"echo shown; kill -KILL $$"_s << 1;
        QTest::newRow("is ended by the session") << u"echo noise; echo shown; exit 0"_s << 0;
        QTest::newRow("dies when closed") << u"echo shown; echo hidden; kill -KILL $$"_s << 0;
    }
    void opensThePageElsewhere()
    {
        QFETCH(QString, script);
        QFETCH(int, timesOpened);
        FakeServices services;
        const auto help = standIn(script, services);
        for (int round = 1; round <= 2; ++round) { // the next time it is tried again
            help->showPage(page, u"Help"_s);
            QTRY_COMPARE(help->processId(), 0);
            QCOMPARE(services.opened, QList<QUrl>(round * timesOpened, page));
        }
    }

    void opensThePageWhenNothingCanBeStarted()
    {
        FakeServices services;
        HelpProcess help(u"/nowhere/quillet"_s, {}, services);
        help.showPage(page, u"Help"_s);
        QTRY_COMPARE(services.opened, QList<QUrl>{page});
    }

    void givesUpOnAProcessThatHangs()
    {
        FakeServices services;
        const auto help = standIn(u"exec sleep 600"_s, services);
        help->setPatience(50);
        help->showPage(page, u"Help"_s);
        QVERIFY(services.opened.isEmpty());
        QTRY_COMPARE(services.opened, QList<QUrl>{page});
        QTRY_COMPARE(help->processId(), 0);
        help->showPage(page, u"Help"_s); // nobody waits a second time
        QCOMPARE(services.opened.size(), 2);
    }

    void asksOneProcessUntilTheEnd()
    {
        const QTemporaryDir folder;
        const QString notes = folder.filePath(u"notes"_s);
        FakeServices services;
        auto help = standIn(u"while read -r line; do echo \"$line\" >>'%1'; echo shown; done;"
                            "echo end >>'%1'"_s.arg(notes),
                            services);
        for (const QString &title : {u"One"_s, u"Zwei\nÜ"_s}) {
            help->showPage(page, title);
            QTRY_COMPARE(contentOf(notes).count("\n"), title == u"One" ? 1 : 2);
        }
        QTRY_VERIFY(help->isShown());
        help.reset();
        const QByteArray address = page.toEncoded();
        QCOMPARE(contentOf(notes), address + "\tOne\n" + address + "\tZwei \xC3\x9C\nend\n");
        QVERIFY(services.opened.isEmpty());
        const HelpRequest request = HelpRequest::fromLine(address + "\tZwei \xC3\x9C");
        QCOMPARE(request.page, page);
        QCOMPARE(request.title, u"Zwei Ü"_s);
    }

#ifndef QUILLET_HAS_ENGINE
    /// The program itself, as it is packaged without the engine.
    void opensThePageElsewhereWithoutTheEngine()
    {
        FakeServices services;
        HelpProcess help(QStringLiteral(QUILLET_EXECUTABLE), {u"--help-window"_s}, services);
        help.setPatience(60'000);
        help.showPage(page, u"Help"_s);
        QTRY_COMPARE_WITH_TIMEOUT(help.processId(), 0, 60'000);
        QCOMPARE(services.opened, QList<QUrl>{page});
    }
#else
    /// The program itself, with the engine.
    void showsTheGuideInAProcessOfItsOwn()
    {
        const QUrl start = QUrl::fromLocalFile(QStringLiteral(QUILLET_GUIDE "/index.html"));
        FakeServices services;
        auto help = std::make_unique<HelpProcess>(QStringLiteral(QUILLET_EXECUTABLE),
                                                  QStringList{u"--help-window"_s}, services);
        help->setPatience(60'000);
        for (int round = 0; round < 2; ++round) { // killed, it comes again
            help->showPage(start, u"Help"_s);
            QTRY_VERIFY_WITH_TIMEOUT(help->isShown(), 60'000);
            QCOMPARE(services.opened.size(), round);
            kill(static_cast<pid_t>(help->processId()), SIGKILL);
            QTRY_COMPARE(services.opened.size(), round + 1);
        }
        qputenv("QTWEBENGINEPROCESS_PATH", "/nowhere"); // without which the engine aborts
        help = std::make_unique<HelpProcess>(QStringLiteral(QUILLET_EXECUTABLE),
                                             QStringList{u"--help-window"_s}, services);
        help->showPage(start, u"Help"_s);
        QTRY_COMPARE_WITH_TIMEOUT(services.opened.size(), 3, 60'000);
        qunsetenv("QTWEBENGINEPROCESS_PATH");
    }

    /// However the editor ends, its end of the pipe goes.
    void endsWithTheEditor()
    {
        QProcess process;
        process.start(QStringLiteral(QUILLET_EXECUTABLE), {u"--help-window"_s});
        process.write(HelpRequest{
            QUrl::fromLocalFile(QStringLiteral(QUILLET_GUIDE "/index.html")),
            {}}.line());
        QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), 60'000);
        QCOMPARE(process.readLine(), QByteArray("shown\n"));
        QSignalSpy finished(&process, &QProcess::finished);
        process.closeWriteChannel();
        QVERIFY(finished.wait(60'000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
    }
#endif
};

QUILLET_TEST(HelpProcessTest)
#include "HelpProcessTest.moc"
