#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FindingReport.h"
#include "cli/Invocation.h"
#include "cli/ListFile.h"
#include "cli/ListSaving.h"
#include "document/read/ListReading.h"
#include "document/repair/FileDiagnosis.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "document/write/TLLWriter.h"
#include "texts/MendingTexts.h"
#include "texts/RehearsalTexts.h"

namespace quillet {

namespace {

/// The repaired form, if the plain one would lose something that it keeps; what even that loses is
/// told, and then there are no bytes unless they are wanted all the same.
std::optional<QByteArray> withoutLoss(const ListFile &file, bool isForced, Console &console)
{
    const Rehearsal plain = rehearse(file.list, writeTLL(file.list, {}));
    if (plain.isClean())
        return file.bytes;
    const QByteArray repaired = repairedTLL(file.list);
    const Rehearsal ofRepaired = rehearse(file.list, repaired);
    if (ofRepaired.isClean())
        return repaired;
    console.tell(file.path, textsOf(ofRepaired).join(u'\n'));
    if (isForced)
        return repaired;
    console.tell(file.path, QStringLiteral("Not written; --force writes it all the same."));
    return {};
}

} // namespace

ExitStatus runRepair(const Invocation &invocation, Console &console)
{
    const QString path = invocation.operands().constFirst();
    const auto file = openList(path, invocation, console);
    if (!file)
        return ExitStatus::FileError;
    ListSaving saving(invocation, console);
    if (const auto mended = repairedText(file->list)) {
        console.tell(path, textsOf(mended->mending).join(u'\n'));
        if (saving.losesOriginal() && !invocation.isSet(Option::Force)) {
            console.tell(path, QStringLiteral("Not replaced, for the damaged file would be kept "
                                              "nowhere; use --output."));
            return ExitStatus::Findings;
        }
        return saving.writeBytes(*file, mended->utf8);
    }
    if (file->list.parseError) {
        tellFindings(path, file->list, console);
        console.tell(path, QStringLiteral("This damage cannot be mended; nothing was written."));
        return ExitStatus::Findings;
    }
    const auto bytes = withoutLoss(*file, invocation.isSet(Option::Force), console);
    return bytes ? saving.writeBytes(*file, *bytes) : ExitStatus::Findings;
}

} // namespace quillet
