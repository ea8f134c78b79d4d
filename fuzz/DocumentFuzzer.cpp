// A file is opened, saved, opened again and saved again.

#include "FuzzTarget.h"

#include "document/SaveReview.h"
#include "document/TLLDocument.h"
#include "document/repair/FileDiagnosis.h"
#include "document/repair/Mending.h"
#include "document/repair/RepairedWriter.h"
#include "support/TextConversion.h"

#include <algorithm>
#include <set>

using namespace quillet;
using namespace quillet::fuzzing;

namespace {

/// Shows the longest list, as a window would.
[[nodiscard]] bool open(TLLDocument &document, const QByteArray &bytes)
{
    Error error;
    if (!document.readFromData(bytes, TLLDocument::typeName(), error)) {
        require(bytes.isEmpty() == error.isEmpty(), "a refusal says why");
        return false;
    }
    require(document.list().text.bytes() == bytes, "the bytes that were read are kept");
    int longest = 0;
    for (int source = 1; source < stationSourceCount; ++source) {
        if (document.lists().stationCount(source) > document.lists().stationCount(longest))
            longest = source;
    }
    document.switchToMode(true);
    document.switchToSource(longest);
    return true;
}

[[nodiscard]] std::vector<StationListPtr> listsOf(const TLLDocument &document)
{
    const StationLists &lists = document.lists();
    std::vector<StationListPtr> all(lists.tvStations().begin(), lists.tvStations().end());
    all.insert(all.end(), lists.radioStations().begin(), lists.radioStations().end());
    return all;
}

void checkLists(const TLLDocument &document)
{
    std::set<const LGStation *> listed;
    for (const StationListPtr &list : listsOf(document)) {
        qint64 last = 0;
        for (const StationPtr &station : *list) {
            require(listed.insert(station.get()).second, "no station is listed twice");
            const qint64 number = station->progNum();
            require(number > last || last >= LGStation::progNumMask || document.isLegacyFormat(),
                    "numbers rise up to the highest there is");
            last = std::max(last, number);
        }
    }
    const std::vector<FiledStation> &roll = document.lists().roll();
    require(roll.size() == listed.size() &&
                std::all_of(roll.begin(), roll.end(),
                            [&listed](const FiledStation &filed) {
                                return listed.count(filed.station.get()) == 1;
                            }),
            "every station that was read is listed");
}

/// How much of the text is written before the stations.
[[nodiscard]] qsizetype headerLength(const TLLDocument &document)
{
    const FileLayout &layout = document.list().layout;
    if (document.isLegacyFormat())
        return layout.headerLenLegacy();
    return document.analogStations() >= 1 ? layout.headerLenATV() : layout.headerLenDTV();
}

[[nodiscard]] QString header(const TLLDocument &document)
{
    return document.xmlString().first(headerLength(document));
}

void checkSurroundings(const TLLDocument &document, const QByteArray &saved)
{
    const QString before = header(document);
    const bool isFooterWritten =
        document.isLegacyFormat() || document.analogStations() + document.digitalStations() >= 1;
    const QString after =
        isFooterWritten ? document.list().layout.footer().value_or(QString()) : QString();
    if (saved.isValidUtf8()) {
        require(saved.startsWith(before.toUtf8()), "the text before the stations is kept");
        require(saved.endsWith(after.toUtf8()), "the text behind the stations is kept");
        return;
    }
    // Text that UTF-8 cannot hold, behind a byte-order mark.
    const QString text = getAsString(saved).value_or(QString());
    require(text.startsWith(before) || text.sliced(1).startsWith(before),
            "the text before the stations is kept");
    require(text.endsWith(after), "the text behind the stations is kept");
}

/// Whether all that a save is made of is the same in both.
[[nodiscard]] bool isSame(const TLLDocument &a, const TLLDocument &b)
{
    if (a.isLegacyFormat() != b.isLegacyFormat() || header(a) != header(b) ||
        a.list().layout.footer().value_or(QString()).isEmpty() ||
        a.list().layout.footer() != b.list().layout.footer() ||
        a.list().broadcast.legacyDict != b.list().broadcast.legacyDict)
        return false;
    const std::vector<StationListPtr> listsOfA = listsOf(a);
    const std::vector<StationListPtr> listsOfB = listsOf(b);
    const auto isSameStation = [](const StationPtr &one, const StationPtr &other) {
        return one->origPos() == other->origPos() && one->entry() == other->entry();
    };
    return std::equal(listsOfA.begin(), listsOfA.end(), listsOfB.begin(), listsOfB.end(),
                      [&isSameStation](const StationListPtr &one, const StationListPtr &other) {
                          return std::equal(one->begin(), one->end(), other->begin(), other->end(),
                                            isSameStation);
                      });
}

void checkMending(const TLLDocument &document)
{
    for (const FileFinding &finding : diagnose(document.list()))
        require(finding.line >= 0 && finding.column >= 0 && finding.unread >= 0,
                "a finding has a place");
    const std::optional<MendedText> mended = repairedText(document.list());
    if (!mended)
        return;
    TLLDocument repaired;
    require(repaired.readRepaired(*mended, {}), "a mended text can be read");
    require(!repaired.list().parseError, "a mended text parses to its end");
    const std::size_t dropped = mended->mending.droppedStation ? 1 : 0;
    require(repaired.lists().roll().size() + dropped >= document.lists().roll().size(),
            "mending loses no station that was read whole");
}

/// Whether no station is missing or doubled; false also for what cannot be opened again.
[[nodiscard]] bool keepsStations(const Rehearsal &rehearsal)
{
    return !rehearsal.isRefused && rehearsal.missing.count == 0 && rehearsal.doubled.count == 0;
}

/// What a save rehearses, and the writing that it offers where something would be lost.
void checkRehearsal(const TLLDocument &document, const QByteArray &saved)
{
    const Rehearsal rehearsal = rehearse(document.list(), saved);
    require(rehearsal.isClean() || !reviewOfSave({}, rehearsal, {}, {}).alert.buttons.isEmpty(),
            "a loss is told");
    TLLDocument again;
    Error error;
    // Of a damaged file a save may bring stations back that were not read.
    if (rehearsal.isClean() && !document.list().parseError &&
        again.readFromData(saved, TLLDocument::typeName(), error))
        require(again.lists().roll().size() == document.lists().roll().size(),
                "a clean save keeps the number of stations");

    require(keepsStations(rehearse(document.list(), repairedTLL(document.list()))),
            "a repaired writing keeps every station");
    for (const FiledStation &filed : document.lists().roll()) {
        filed.station->setSkipped(true);
        filed.station->setStationName(QStringLiteral("R&B <1>"));
    }
    require(keepsStations(rehearse(document.list(), repairedTLL(document.list()))),
            "a repaired writing keeps every edited station");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    TLLDocument document;
    if (!open(document, bytes))
        return 0;
    require(bytes == bytesOf(data, size), "reading leaves the bytes alone");
    checkLists(document);
    checkMending(document);

    Error error;
    const QByteArray saved = document.dataOfType({}, error);
    require(error.isEmpty(), "what was read can be written");
    checkSurroundings(document, saved);
    require(document.dataOfType({}, error) == saved, "saving changes nothing");

    TLLDocument again;
    if (open(again, saved)) {
        checkLists(again);
        const QByteArray savedAgain = again.dataOfType({}, error);
        require(!isSame(document, again) || savedAgain == saved,
                "what comes back the same is written the same");
    }
    checkRehearsal(document, saved);
    return 0;
}
