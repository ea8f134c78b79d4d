#include "editor/StationComparison.h"

#include "editor/ViewController.h"

#include <QSet>

#include <algorithm>
#include <new>
#include <utility>

namespace quillet {

namespace {

constexpr ComparisonKinds differing{ComparisonKind::Moved,    ComparisonKind::Renamed,
                                    ComparisonKind::Flags,    ComparisonKind::Fields,
                                    ComparisonKind::OnlyHere, ComparisonKind::OnlyThere,
                                    ComparisonKind::Unclear};

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
    for (const auto &[list, plan] : parts) {
        summary.others += plan.toTheEnd.size();
        summary.stations += plan.changed.size() - plan.toTheEnd.size();
    }
    return summary;
}

} // namespace

StationComparison::StationComparison(ViewController &controller, ComparedWith other)
    : m_controller(controller), m_other(std::move(other)), m_filter(findings(m_other)),
      m_choice(m_other)
{
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &StationComparison::compareAnew);
    const auto soon = [this] {
        m_planForAll.reset();
        m_later.start(0);
    };
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
    try {
        show(rowsNow(*document));
    } catch (const std::bad_alloc &) {
        m_controller.showError(qtTrId("kNoMemoryReason"),
                               qtTrId("kCompareFailed").arg(m_other.name));
    }
}

ComparisonRows StationComparison::rowsNow(const TLLDocument &document) const
{
    if (purpose() == Purpose::Order)
        return orderRows(document.stations() ? *document.stations() : StationList(),
                         document.usesTV(), document.curSource(), m_other.entries);
    return comparisonRows(document.lists(), m_other);
}

void StationComparison::show(ComparisonRows rows)
{
    std::vector<List> lists;
    for (const ComparisonRow &row : rows) {
        const List list{row.isTV, row.source};
        if (std::find(lists.begin(), lists.end(), list) == lists.end())
            lists.push_back(list);
    }
    narrow([&] {
        m_rows = std::move(rows);
        m_lists = std::move(lists);
        const auto &list = m_filter.list();
        if (list && std::find(m_lists.begin(), m_lists.end(), *list) == m_lists.end())
            m_filter.setList({});
        numberChecked();
    });
}

void StationComparison::narrow(const std::function<void()> &change)
{
    emit rowsAboutToChange();
    change();
    m_planForAll.reset();
    m_shown.clear();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_filter.shows(m_rows[i]))
            m_shown.push_back(i);
    }
    emit rowsChanged();
}

std::size_t StationComparison::count(ComparisonKind kind) const
{
    const auto is = [this, kind](const ComparisonRow &row) {
        return row.kinds.testFlag(kind) && m_filter.isOfList(row);
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
    narrow([this, kinds] { m_filter.setKinds(kinds); });
}

void StationComparison::search(const QString &text)
{
    narrow([this, &text] { m_filter.setSearched(text); });
}

void StationComparison::showList(const std::optional<List> &list)
{
    narrow([this, &list] { m_filter.setList(list); });
}

bool StationComparison::canBeChecked(std::size_t row) const
{
    return m_choice.canBeChecked(this->row(row));
}

bool StationComparison::isChecked(std::size_t row) const
{
    return m_choice.isChecked(this->row(row));
}

void StationComparison::check(const std::vector<std::size_t> &rows, bool isChecked)
{
    for (const std::size_t each : rows)
        m_choice.check(row(each), isChecked);
    choose();
}

void StationComparison::choose()
{
    numberChecked();
    m_planForAll.reset();
    emit choiceChanged();
}

/// Where rows tell an order, the numbers follow from which of them are checked.
void StationComparison::numberChecked()
{
    const TLLDocument *document = m_controller.stationDoc();
    if (m_other.rule == NumberRule::ByRows && document)
        numberByRows(m_rows, document->lists(),
                     [this](const ComparisonRow &row) { return m_choice.isChecked(row); });
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
    m_choice.take(aspect, isTaken);
    choose();
}

QString StationComparison::reasonAgainst(StationDifference aspect) const
{
    bool differs = false;
    for (const ComparisonRow &row : m_rows) {
        if (!row.here || !row.there || !m_filter.isOfList(row))
            continue;
        if (takeable(row).testFlag(aspect))
            return {};
        differs = differs || row.differences.testFlag(aspect);
    }
    if (differs && aspect == StationDifference::Name)
        return qtTrId("kTipRenameAnalogue");
    return qtTrId("kCompareNoSuchDifference");
}

std::size_t StationComparison::uncheckedUnsure() const
{
    const auto is = [this](const ComparisonRow &row) {
        const bool isUnsure = purpose() == Purpose::Compare
                                  ? !isTakenUnasked(row) && m_choice.canBeChecked(row)
                                  : row.kinds.testFlag(ComparisonKind::Unclear);
        return isUnsure && m_filter.isOfList(row) && !m_choice.isChecked(row);
    };
    return static_cast<std::size_t>(std::count_if(m_rows.begin(), m_rows.end(), is));
}

std::size_t StationComparison::checkedHidden() const
{
    const auto is = [this](const ComparisonRow &row) {
        return m_filter.isOfList(row) && !m_filter.shows(row) && m_choice.isChecked(row) &&
               (purpose() == Purpose::Paste || takeable(row));
    };
    return static_cast<std::size_t>(std::count_if(m_rows.begin(), m_rows.end(), is));
}

std::size_t StationComparison::doubledNumbers() const
{
    return m_choice.doubledNumbers(m_rows, m_filter);
}

const StationComparison::Parts &StationComparison::planForAll() const
{
    if (!m_planForAll)
        m_planForAll = planAll();
    return *m_planForAll;
}

StationComparison::Parts StationComparison::planAll() const
{
    std::vector<const ComparisonRow *> rows;
    for (const ComparisonRow &row : m_rows) {
        if (m_filter.isOfList(row) && m_choice.isChecked(row))
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
    return document ? m_choice.plan(document->lists(), m_rows, std::move(rows)) : Parts();
}

void StationComparison::takeOverAll()
{
    carryOut([this] { return planAll(); });
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
            if (m_choice.isChecked(row) && taken.contains(row.there.get()))
                checked.push_back(&row);
        }
        return this->plan(std::move(checked));
    });
}

void StationComparison::carryOut(const std::function<Parts()> &plan)
{
    const EditSummary summary = summaryOf(m_other, plan());
    const auto self = shared_from_this();
    m_controller.comparing().takeOver([plan, self] { return plan(); }, summary,
                                      [self, summary] { emit self->takenOver(textOf(summary)); });
}

StationList StationComparison::checkedStations() const
{
    std::vector<const ComparisonRow *> checked;
    for (const ComparisonRow &row : m_rows) {
        if (m_choice.isChecked(row))
            checked.push_back(&row);
    }
    orderAsThere(checked);
    StationList stations;
    for (const ComparisonRow *row : checked)
        stations.push_back(row->here);
    return stations;
}

bool StationComparison::isStillSo()
{
    const TLLDocument *document = m_controller.stationDoc();
    if (!document)
        return false;
    ComparisonRows rows = rowsNow(*document);
    if (rows == m_rows)
        return true;
    show(std::move(rows));
    return false;
}

void StationComparison::applyOrder()
{
    m_controller.ordering().apply(m_other.entries, m_other.name);
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
    if (purpose() == Purpose::Order)
        m_later.start(0); // their names are read then
    return true;
}

} // namespace quillet
