#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FileWalk.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListSaving.h"
#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/VersionStore.h"

#include <algorithm>

namespace quillet {

namespace {

using Versions = std::vector<KeptVersion>;

constexpr qsizetype shownDigits = 12; ///< of a digest

/// By its number in the list, from 1, or the beginning of its digest; the end when there is none.
Versions::const_iterator found(const Versions &versions, const QString &wanted)
{
    bool isNumber = false;
    const auto number = wanted.toULongLong(&isNumber);
    if (isNumber && number >= 1 && number <= versions.size())
        return versions.begin() + static_cast<Versions::difference_type>(number - 1);
    const QByteArray digits = wanted.toLatin1().toLower();
    if (digits.size() < shownDigits)
        return versions.end();
    return std::find_if(versions.begin(), versions.end(), [&digits](const KeptVersion &version) {
        return version.digest.startsWith(digits);
    });
}

void writeText(const QString &path, const Versions &versions, bool hasTitle, Console &console)
{
    if (hasTitle)
        console.print(QStringLiteral("==> %1 <==\n").arg(fileTitle(path)));
    std::size_t number = 0;
    for (const KeptVersion &version : versions)
        console.print(QStringLiteral("%1  %2  %3 bytes  %4%5\n")
                          .arg(++number, 3)
                          .arg(version.time.isValid()
                                   ? version.time.toLocalTime().toString(Qt::ISODate)
                                   : QStringLiteral("(no time)"))
                          .arg(version.size, 9)
                          .arg(QString::fromLatin1(version.digest.left(shownDigits)),
                               version.isFirst ? QStringLiteral("  first") : QString()));
}

void writeObject(const QString &path, const Versions &versions, ExitStatus status, Console &console)
{
    Array array;
    for (const KeptVersion &version : versions)
        array.append(Dictionary{
            {QStringLiteral("digest"), QString::fromLatin1(version.digest)},
            {QStringLiteral("bytes"), Value(qint64(version.size))},
            {QStringLiteral("time"),
             version.time.isValid() ? Value(version.time.toUTC().toString(Qt::ISODate)) : Value()},
            {QStringLiteral("first"), Value(version.isFirst)},
        });
    Dictionary report = jsonReport("versions", path, status);
    report.insert(QStringLiteral("versions"), array);
    writeJson(report, console);
}

/// Tells when there may be more versions than are known.
bool isKnown(const QString &path, const VersionStore &store, Console &console)
{
    if (store.isKnown(absolutePath(path)))
        return true;
    console.tell(path, qtTrId("kVersionsUnreadableReason").arg(readable(store.folder())));
    return false;
}

ExitStatus writeVersion(const Invocation &invocation, const VersionStore &store, Console &console)
{
    const QString path = invocation.operands().value(0);
    const Versions versions = store.versionsOf(absolutePath(path));
    const auto version = found(versions, invocation.value(Option::Get));
    if (version == versions.end()) {
        if (!isKnown(path, store, console))
            return ExitStatus::FileError;
        console.tell(path, QStringLiteral("No such version is kept."));
        return ExitStatus::Findings;
    }
    QByteArray bytes;
    Error error;
    if (!store.read(*version, bytes, error)) {
        console.tell(path, error.text());
        return ExitStatus::FileError;
    }
    return ListSaving(invocation, console).writeOutput(bytes);
}

} // namespace

ExitStatus runVersions(const Invocation &invocation, Console &console)
{
    FileOperations operations;
    const VersionStore store(VersionStore::standardFolder(), operations);
    if (invocation.isSet(Option::Get) != invocation.isSet(Option::Output) ||
        (invocation.isSet(Option::Get) && namesSeveral(invocation))) {
        console.tell({}, QStringLiteral("--get and --output go together, with one file."));
        return ExitStatus::Usage;
    }
    if (invocation.isSet(Option::Get))
        return writeVersion(invocation, store, console);
    return forEachFile(invocation, console, [&](const QString &path) {
        const Versions versions = store.versionsOf(absolutePath(path));
        const ExitStatus status =
            isKnown(path, store, console) ? ExitStatus::Done : ExitStatus::FileError;
        if (invocation.isSet(Option::Json))
            writeObject(path, versions, status, console);
        else
            writeText(path, versions, namesSeveral(invocation), console);
        return status;
    });
}

} // namespace quillet
