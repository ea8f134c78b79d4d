#include "texts/RowTexts.h"

#include "document/compare/StationIdentity.h"
#include "texts/SourceTitles.h"

#include <QStringList>

#include <array>

namespace quillet {

namespace {

using Purpose = ComparedWith::Purpose;

struct KindTitle
{
    ComparisonKind kind;
    const char *title;
    const char *ofRow; ///< in its row; null: other texts say more
};

constexpr std::array kindTitles{
    KindTitle{ComparisonKind::Moved, "kCompareMoved", "kRowMoved"},
    KindTitle{ComparisonKind::Renamed, "kCompareRenamed", "kRowRenamed"},
    KindTitle{ComparisonKind::Flags, "kCompareFlags", nullptr},
    KindTitle{ComparisonKind::Fields, "kCompareFields", "kRowFields"},
    KindTitle{ComparisonKind::OnlyHere, "kCompareOnlyHere", "kRowOnlyHere"},
    KindTitle{ComparisonKind::OnlyThere, "kCompareOnlyThere", "kRowOnlyThere"},
    KindTitle{ComparisonKind::Same, "kCompareSame", nullptr},
    KindTitle{ComparisonKind::Unclear, "kCompareUnclear", nullptr},
};

/// The same where only one list has the station, and it is more than that.
constexpr std::array fateTitles{
    KindTitle{ComparisonKind::OnlyHere, "kCompareToTheEnd", "kRowToTheEnd"},
    KindTitle{ComparisonKind::OnlyThere, "kCompareFitsNothing", "kRowFitsNothing"},
};

const KindTitle &titlesOf(ComparisonKind kind, Purpose purpose)
{
    if (purpose != Purpose::Compare) {
        for (const KindTitle &each : fateTitles) {
            if (each.kind == kind)
                return each;
        }
    }
    std::size_t place = 0;
    while (kindTitles.at(place).kind != kind)
        ++place;
    return kindTitles.at(place);
}

} // namespace

QString titleOf(ComparedList list)
{
    return listTitle(list.isTV, list.source);
}

QString shortTitleOf(ComparedList list)
{
    const QString source = sourceTitle(list.source);
    return list.isTV ? source : source + u' ' + qtTrId("kRadio").remove(u'&');
}

QString titleOf(ComparisonKind kind, Purpose purpose)
{
    return qtTrId(titlesOf(kind, purpose).title);
}

QString textOf(const ComparisonRow &row, Purpose purpose)
{
    const auto areAlike = [](const ComparisonRow &each) {
        return each.nameHere != each.nameThere &&
               looseName(each.nameHere) == looseName(each.nameThere);
    };
    QStringList parts;
    if (row.isDoubled)
        parts.append(qtTrId("kRowDoubled"));
    else if (row.likeness == Likeness::Loose)
        parts.append(qtTrId(areAlike(row) ? "kRowLoose" : "kRowUnsure"));
    for (const KindTitle &each : kindTitles) {
        const char *text = titlesOf(each.kind, purpose).ofRow;
        if (row.kinds.testFlag(each.kind) && text)
            parts.append(qtTrId(text));
    }
    if (row.differences.testFlag(StationDifference::Skipped))
        parts.append(qtTrId(row.there->isSkipped() ? "kRowSkippedThere" : "kRowSkippedHere"));
    if (row.differences.testFlag(StationDifference::Locked))
        parts.append(qtTrId(row.there->isBlocked() ? "kRowLockedThere" : "kRowLockedHere"));
    if (row.isElsewhere)
        parts.append(qtTrId("kRowElsewhere"));
    if (row.likeness == Likeness::ByName)
        parts.append(qtTrId("kRowByName"));
    return parts.join(QStringLiteral(", "));
}

} // namespace quillet
