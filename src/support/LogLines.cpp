#include "support/LogLines.h"

#include "support/KXFileLog.h"

namespace quillet {

LogLines::LogLines(const QString &logName) : m_log(KXFileLog::sharedLogWithName(logName)) {}

LogLines::~LogLines()
{
    flush();
}

void LogLines::flush()
{
    if (isWanted())
        write();
}

void LogLines::beginLine()
{
    append(QStringView(m_log->formattedTime()));
    append(QLatin1String(": "));
}

void LogLines::write()
{
    m_log->writeUtf8(m_lines.text());
    m_lines.clear();
}

} // namespace quillet
