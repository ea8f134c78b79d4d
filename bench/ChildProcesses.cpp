#include "bench/ChildProcesses.h"

#include "bench/Medians.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <vector>

namespace quillet::bench {

namespace {

constexpr int timesStarted = 15;
constexpr int longestWait = 120'000; // milliseconds

bool hasSucceeded(QProcess &process)
{
    if (process.waitForFinished(longestWait) && process.exitStatus() == QProcess::NormalExit &&
        process.exitCode() == 0)
        return true;
    std::fprintf(stderr, "%s failed: %s\n%s", qPrintable(process.program()),
                 qPrintable(process.errorString()), process.readAllStandardError().constData());
    return false;
}

/// With settings and logs of its own, none at first.
std::optional<double> secondsToRun(const QString &program, const QStringList &arguments)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    QProcess process;
    process.setProcessEnvironment(environment);
    QElapsedTimer clock;
    clock.start();
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QDir(QCoreApplication::applicationDirPath()).filePath(program), arguments);
    if (!hasSucceeded(process))
        return {};
    return static_cast<double>(clock.nsecsElapsed()) / 1e9;
}

/// In turn, so that a busy moment of the machine meets both alike.
std::optional<StartUp> measureStartUp(const QString &bareProgram, const QString &program,
                                      const QStringList &arguments = {})
{
    std::vector<double> bare;
    std::vector<double> whole;
    for (int i = 0; i <= timesStarted; ++i) {
        const std::optional<double> bareSeconds = secondsToRun(bareProgram, {});
        const std::optional<double> seconds = secondsToRun(program, arguments);
        if (!bareSeconds || !seconds)
            return {};
        if (i == 0)
            continue; // it found the files on disk only
        bare.push_back(*bareSeconds);
        whole.push_back(*seconds);
    }
    return StartUp{.bare = *median(bare), .program = *median(whole)};
}

} // namespace

std::optional<double> memoryOfLoadingInNewProcess(const QString &file)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QString::fromLatin1(memoryOption), file});
    if (!hasSucceeded(process))
        return {};
    bool isNumber = false;
    const double bytes = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    return isNumber ? std::optional(bytes) : std::nullopt;
}

std::optional<StartUp> measureWindowStartUp()
{
    return measureStartUp(QStringLiteral("bare_window"), QStringLiteral("editor_window"));
}

std::optional<StartUp> measureToolStartUp()
{
    return measureStartUp(QStringLiteral("bare_core"), QStringLiteral(QUILLET_CLI),
                          {QStringLiteral("--version")});
}

} // namespace quillet::bench
