#include "cli/JsonReport.h"

#include "cli/Console.h"
#include "cli/Invocation.h"
#include "files/FileNames.h"
#include "xml/JSON.h"

namespace quillet {

Dictionary jsonReport(const char *command, const QString &file, ExitStatus status)
{
    return {
        {QStringLiteral("format"), QString(QLatin1String("quillet-cli/") + QLatin1String(command))},
        {QStringLiteral("version"), Value(jsonVersion)},
        {QStringLiteral("file"), readable(file)},
        {QStringLiteral("status"), Value(static_cast<qint64>(status))}};
}

void writeJson(const Dictionary &report, Console &console)
{
    console.write(toJSON(report).value_or(QByteArray("{}")) + "\n");
}

ExitStatus reportFailure(const QString &file, const QString &reason, ExitStatus status,
                         const Invocation &invocation, Console &console)
{
    if (invocation.isSet(Option::Json)) {
        Dictionary report = jsonReport(invocation.command().name, file, status);
        report.insert(QStringLiteral("error"), reason);
        writeJson(report, console);
    }
    return status;
}

Value jsonText(const std::optional<QString> &text)
{
    return text ? Value(*text) : Value();
}

Value jsonTexts(const QStringList &texts)
{
    Array array;
    for (const QString &text : texts)
        array.append(text);
    return array;
}

} // namespace quillet
