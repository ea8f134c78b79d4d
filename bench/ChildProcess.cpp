#include "bench/ChildProcess.h"

#include "bench/Home.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

#include <cstdio>

#include <sys/resource.h>

namespace quillet::bench {

namespace {

constexpr int longestWait = 600'000; // milliseconds

bool hasSucceeded(QProcess &process)
{
    if (process.waitForFinished(longestWait) && process.exitStatus() == QProcess::NormalExit &&
        process.exitCode() == 0)
        return true;
    std::fprintf(stderr, "%s failed: %s\n%s", qPrintable(process.program()),
                 qPrintable(process.errorString()), process.readAllStandardError().constData());
    return false;
}

/// Of all processes that this one has started and that have ended, in seconds.
double timeOfChildren()
{
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

} // namespace

QString programBeside(const QString &name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

std::optional<double> secondsToRun(const QString &program, const QStringList &arguments)
{
    const Home home;
    QProcess process;
    process.setProcessEnvironment(home.environment());
    process.setStandardOutputFile(QProcess::nullDevice());
    const double before = timeOfChildren();
    process.start(program, arguments);
    return hasSucceeded(process) ? std::optional(timeOfChildren() - before) : std::nullopt;
}

std::optional<double> numberFromNewProcess(const QStringList &arguments)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), arguments);
    if (!hasSucceeded(process))
        return {};
    bool isNumber = false;
    const double number = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace quillet::bench
