#include "editor/StationComparison.h"

#include "editor/ViewController.h"
#include "model/CleanName.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

constexpr ComparisonKinds differing{ComparisonKind::Moved,    ComparisonKind::Renamed,
                                    ComparisonKind::Flags,    ComparisonKind::Fields,
                                    ComparisonKind::OnlyHere, ComparisonKind::OnlyThere};

/// The kinds that are worth showing. What is to be pasted need not differ.
ComparisonKinds findings(const ComparedWith &other)
{
    ComparisonKinds kinds = differing;
    kinds.setFlag(ComparisonKind::Same, other.purpose == ComparedWith::Purpose::Paste);
    return kinds;
}

EditSummary summaryOf(const ComparedWith &other, const StationComparison::Parts &parts)
{
    EditSummary summary{.kind = other.purpose == ComparedWith::Purpose::Import
                                    ? EditSummary::Kind::Imported
                                    : EditSummary::Kind::TakenOver,
                        .name = other.name};
    for (const auto &[list, plan] : parts)
        summary.stations += plan.changed.size();
    return summary;
}

void orderAsThere(std::vector<const ComparisonRow *> &rows)
{
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto *a, const auto *b) { return a->placeThere < b->placeThere; });
}

bool isIn(const QString &name, const QString &searched)
{
    return name.contains(searched, Qt::CaseInsensitive) ||
           cleanName(name).contains(searched, Qt::CaseInsensitive);
}

} // namespace

StationComparison::StationComparison(ViewController &controller, ComparedWith other)
    : m_controller(controller), m_other(std::move(other)), m_kinds(findings(m_other))
{
    for (const StationDifference aspect : aspects)
        m_takes.setFlag(aspect);
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &StationComparison::compareAnew);
    const auto soon = [this] { m_later.start(0); };
    connect(&controller, &ViewController::edited, this, soon);
    connect(&controller, &TableController::documentChanged, this, soon);
    connect(controller.stationDoc(), &QObject::destroyed, this, [this] {
        m_later.stop();
        emit documentGone();
    });
    compareAnew();
}

void StationComparison::compareAnew()
{
    const TLLDocument *document = m_controller.stationDoc();
    if (!document)
        return;
    emit rowsAboutToChange();
    if (purpose() == Purpose::Order)
        m_rows = orderRows(document->stations() ? *document->stations() : StationList(),
                           document->usesTV(), document->curSource(), m_other.entries);
    else
        m_rows = comparisonRows(document->lists(), m_other);
    m_lists.clear();
    for (const ComparisonRow &row : m_rows) {
        const List list{row.isTV, row.source};
        if (std::find(m_lists.begin(), m_lists.end(), list) == m_lists.end())
            m_lists.push_back(list);
    }
    filter();
    emit rowsChanged();
}

bool StationComparison::isOnShow(const ComparisonRow &row) const
{
    return !m_list || *m_list == List{row.isTV, row.source};
}

void StationComparison::filter()
{
    m_shown.clear();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const ComparisonRow &row = m_rows[i];
        const bool isFound = m_searched.isEmpty() || isIn(row.nameHere, m_searched) ||
                             isIn(row.nameThere, m_searched);
        if (isFound && (row.kinds & m_kinds) && isOnShow(row))
            m_shown.push_back(i);
    }
}

std::size_t StationComparison::count(ComparisonKind kind) const
{
    const auto is = [this, kind](const ComparisonRow &row) {
        return row.kinds.testFlag(kind) && isOnShow(row);
    };
    return static_cast<std::size_t>(std::count_if(m_rows.begin(), m_rows.end(), is));
}

bool StationComparison::isEmpty() const
{
    return std::none_of(
        m_rows.begin(), m_rows.end(),
        [kinds = findings(m_other)](const ComparisonRow &row) { return bool(row.kinds & kinds); });
}

void StationComparison::showKinds(ComparisonKinds kinds)
{
    emit rowsAboutToChange();
    m_kinds = kinds;
    filter();
    emit rowsChanged();
}

void StationComparison::search(const QString &text)
{
    emit rowsAboutToChange();
    m_searched = text;
    filter();
    emit rowsChanged();
}

void StationComparison::showList(const std::optional<List> &list)
{
    emit rowsAboutToChange();
    m_list = list;
    filter();
    emit rowsChanged();
}

/// What is moved needs no difference, only a place among the others.
bool StationComparison::canBeChecked(const ComparisonRow &row) const
{
    if (!offersChecks() || !row.here || !row.there)
        return false;
    return purpose() == Purpose::Paste || m_other.rule == NumberRule::ByRows || takeable(row);
}

bool StationComparison::isChecked(const ComparisonRow &row) const
{
    return canBeChecked(row) && m_chosen.value(row.there.get(), isTakenUnasked(row));
}

bool StationComparison::canBeChecked(std::size_t row) const
{
    return canBeChecked(this->row(row));
}

bool StationComparison::isChecked(std::size_t row) const
{
    return isChecked(this->row(row));
}

void StationComparison::check(const std::vector<std::size_t> &rows, bool isChecked)
{
    for (const std::size_t each : rows) {
        if (canBeChecked(each))
            m_chosen.insert(row(each).there.get(), isChecked);
    }
    emit choiceChanged();
}

void StationComparison::toggle(const std::vector<std::size_t> &rows)
{
    const bool areChecked = std::all_of(rows.begin(), rows.end(), [this](std::size_t row) {
        return !canBeChecked(row) || isChecked(row);
    });
    check(rows, !areChecked);
}

void StationComparison::take(StationDifference aspect, bool isTaken)
{
    m_takes.setFlag(aspect, isTaken);
    emit choiceChanged();
}

QString StationComparison::reasonAgainst(StationDifference aspect) const
{
    bool differs = false;
    for (const ComparisonRow &row : m_rows) {
        if (!row.here || !row.there || !isOnShow(row))
            continue;
        if (takeable(row).testFlag(aspect))
            return {};
        differs = differs || row.differences.testFlag(aspect);
    }
    if (differs && aspect == StationDifference::Name)
        return qtTrId("kTipRenameAnalogue");
    return qtTrId("kCompareNoSuchDifference");
}

std::size_t StationComparison::uncheckedLoose() const
{
    const auto is = [this](const ComparisonRow &row) {
        return isOnShow(row) && row.likeness == Likeness::Loose && canBeChecked(row) &&
               !isChecked(row);
    };
    return static_cast<std::size_t>(std::count_if(m_rows.begin(), m_rows.end(), is));
}

std::size_t StationComparison::doubledNumbers() const
{
    QSet<QString> numbers;
    std::size_t stations = 0;
    for (const ComparisonRow &row : m_rows) {
        if (row.here) {
            ++stations;
            numbers.insert(row.numberThere);
        }
    }
    return stations - static_cast<std::size_t>(numbers.size());
}

/// A station that is the same on both sides takes its own number again, so that no other does.
StationComparison::Parts StationComparison::planForAll() const
{
    std::vector<const ComparisonRow *> rows;
    for (const ComparisonRow &row : m_rows) {
        const bool isSame = row.here && row.there && isTakenUnasked(row) && !canBeChecked(row);
        if (isOnShow(row) && (isSame || isChecked(row)))
            rows.push_back(&row);
    }
    return plan(std::move(rows));
}

StationComparison::Parts StationComparison::planFor(const std::vector<std::size_t> &rows) const
{
    std::vector<const ComparisonRow *> checked;
    for (const std::size_t each : rows) {
        if (isChecked(each))
            checked.push_back(&row(each));
    }
    return plan(std::move(checked));
}

StationComparison::Parts StationComparison::plan(std::vector<const ComparisonRow *> rows) const
{
    const TLLDocument *document = m_controller.stationDoc();
    if (!document)
        return {};
    orderAsThere(rows);
    Parts parts;
    for (const auto &[isTV, source] : m_lists) {
        std::vector<TakenStation> taken;
        for (const ComparisonRow *row : rows) {
            if (row->isTV != isTV || row->source != source)
                continue;
            StationDifferences what = m_takes;
            if (row->there && m_other.told.contains(row->there.get()))
                what &= m_other.told.value(row->there.get());
            taken.push_back({row->here, row->there, what});
        }
        const StationListPtr &list = document->lists().list(isTV, source);
        if (taken.empty() || !list)
            continue;
        TakeOverPlan plan = planTakeOver(*list, taken, m_other.rule, mayRename(source));
        if (!plan.isEmpty())
            parts.push_back({list, std::move(plan)});
    }
    return parts;
}

void StationComparison::takeOverAll()
{
    carryOut([this] { return planForAll(); });
}

void StationComparison::takeOver(const std::vector<std::size_t> &rows)
{
    // By the stations: the rows may be others once a question is answered.
    QSet<const LGStation *> taken;
    for (const std::size_t each : rows)
        taken.insert(row(each).there.get());
    carryOut([this, taken] {
        std::vector<const ComparisonRow *> checked;
        for (const ComparisonRow &row : m_rows) {
            if (isChecked(row) && taken.contains(row.there.get()))
                checked.push_back(&row);
        }
        return this->plan(std::move(checked));
    });
}

void StationComparison::carryOut(const std::function<Parts()> &plan)
{
    m_controller.takeOver([plan, self = shared_from_this()] { return plan(); },
                          summaryOf(m_other, plan()));
}

StationList StationComparison::checkedStations() const
{
    std::vector<const ComparisonRow *> checked;
    for (const ComparisonRow &row : m_rows) {
        if (isChecked(row))
            checked.push_back(&row);
    }
    orderAsThere(checked);
    StationList stations;
    for (const ComparisonRow *row : checked)
        stations.push_back(row->here);
    return stations;
}

void StationComparison::applyOrder()
{
    m_controller.applyOrder(m_other.entries, m_other.name);
}

bool StationComparison::reveal(const std::vector<std::size_t> &rows)
{
    const TLLDocument *document = m_controller.stationDoc();
    const auto first = std::find_if(rows.begin(), rows.end(),
                                    [this](std::size_t each) { return row(each).here != nullptr; });
    if (!document || first == rows.end())
        return false;
    const List list{row(*first).isTV, row(*first).source};
    StationList stations;
    for (const std::size_t each : rows) {
        if (row(each).here && list == List{row(each).isTV, row(each).source})
            stations.push_back(row(each).here);
    }
    const StationListPtr shown = document->lists().list(list.isTV, list.source);
    if (shown != document->stations() || m_controller.shown().areForeign())
        m_controller.showList(shown);
    m_controller.reveal(stations);
    return true;
}

} // namespace quillet
