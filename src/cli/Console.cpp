#include "cli/Console.h"

#include "files/FileNames.h"
#include "files/SystemReasons.h"

#include <QStringList>

#include <cerrno>
#include <csignal>
#include <cstdio>

namespace quillet {

namespace {

constexpr qsizetype longestWait = 0x10000;
constexpr char toolName[] = "quillet-cli";

} // namespace

void Console::write(QByteArrayView data)
{
    if (m_waiting.size() + data.size() > longestWait) {
        give(m_waiting);
        m_waiting.clear();
        if (data.size() > longestWait)
            return give(data);
    }
    m_waiting.append(data);
}

void Console::give(QByteArrayView data)
{
    const auto size = static_cast<std::size_t>(data.size());
    if (m_problem == 0 && size > 0 && std::fwrite(data.data(), 1, size, stdout) < size)
        m_problem = errno;
}

void Console::tell(const QString &file, const QString &message)
{
    QString prefix = QLatin1String(toolName) + QLatin1String(": ");
    if (!file.isEmpty())
        prefix += fileTitle(m_names.value(file, file)) + QLatin1String(": ");
    // What was typed or stands in a file must not speak to the terminal.
    for (const QString &line : message.split(u'\n', Qt::SkipEmptyParts)) {
        const QByteArray text = (prefix + readable(line) + u'\n').toUtf8();
        std::fwrite(text.data(), 1, static_cast<std::size_t>(text.size()), stderr);
    }
}

ExitStatus Console::finish()
{
    give(m_waiting);
    m_waiting.clear();
    if (std::fflush(stdout) != 0 && m_problem == 0)
        m_problem = errno;
    if (m_problem == 0)
        return ExitStatus::Done;
#ifdef SIGPIPE
    if (m_problem == EPIPE) {
        std::signal(SIGPIPE, SIG_DFL);
        std::raise(SIGPIPE);
    }
#endif
    tell(QStringLiteral("standard output"), systemReason(m_problem));
    return ExitStatus::FileError;
}

QString fileTitle(const QString &path)
{
    return isStream(path) ? QStringLiteral("standard input") : readable(path);
}

bool isStream(const QString &path)
{
    return path == QLatin1String("-");
}

} // namespace quillet
