#include "editor/CompareDialog.h"

#include "editor/CheckMarkDelegate.h"
#include "editor/ComparisonTexts.h"
#include "editor/DarkModeTableView.h"
#include "editor/ShownTexts.h"
#include "editor/TableColumns.h"
#include "editor/TableSelection.h"
#include "editor/TypedTextDelegate.h"
#include "editor/ViewController.h"
#include "framework/Mnemonics.h"
#include "framework/ScreenPlace.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr std::array kindsInOrder{ComparisonKind::Moved,    ComparisonKind::Renamed,
                                  ComparisonKind::Flags,    ComparisonKind::Fields,
                                  ComparisonKind::OnlyHere, ComparisonKind::OnlyThere,
                                  ComparisonKind::Same};
constexpr int kindsInLine = 4;

constexpr std::array aspectTitles{std::pair{StationDifference::Number, "kTakeNumbers"},
                                  std::pair{StationDifference::Name, "kTakeNames"},
                                  std::pair{StationDifference::Skipped, "kTakeSkipped"},
                                  std::pair{StationDifference::Locked, "kTakeLocked"}};

QString sizeKey()
{
    return QStringLiteral("windows/Comparison/size");
}

QLabel *makeText(const char *objectName)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(objectName));
    label->setTextFormat(Qt::PlainText); // names of files may look like markup
    label->setWordWrap(true);
    return label;
}

/// Kinds that a purpose has no rows of.
bool hasKind(ComparisonKind kind, ComparedWith::Purpose purpose)
{
    switch (purpose) {
    case ComparedWith::Purpose::Compare:
        return true;
    case ComparedWith::Purpose::Order:
        return kind == ComparisonKind::Moved || kind >= ComparisonKind::OnlyHere;
    default:
        return kind != ComparisonKind::OnlyHere;
    }
}

} // namespace

CompareDialog::CompareDialog(ViewController &controller, const ComparedWith &other, QWidget *parent,
                             MoveHere moveHere)
    : QDialog(parent, Qt::Window), m_controller(controller),
      m_kept(std::make_shared<StationComparison>(controller, other)), m_comparison(*m_kept),
      m_model(m_comparison), m_moveHere(std::move(moveHere)), m_table(new DarkModeTableView)
{
    const bool isQuestion = other.purpose == Purpose::Order || other.purpose == Purpose::Paste;
    setObjectName(QStringLiteral("compareDialog"));
    setWindowTitle(titleOf(other).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
    setWindowModality(isQuestion ? Qt::WindowModal : Qt::NonModal);
    setAttribute(Qt::WA_DeleteOnClose);
    makeTable();
    m_preview = makeText("comparePreview");
    m_preview->setAlignment(Qt::AlignTop);
    const int lines = other.purpose == Purpose::Compare ? 4 : 2;
    m_preview->setMinimumHeight(lines * fontMetrics().lineSpacing()); // so that nothing jumps
    auto *column = new QVBoxLayout(this);
    column->addLayout(makeTop());
    if (!other.remark.isEmpty()) {
        QLabel *remark = makeText("compareRemark");
        remark->setText(other.remark);
        column->addWidget(remark);
    }
    column->addLayout(makeKinds());
    column->addWidget(m_table, 1);
    if (QLayout *aspects = makeAspects())
        column->addLayout(aspects);
    column->addWidget(m_preview);
    column->addWidget(makeButtons());
    setMnemonics();
    setTabOrders();
    addShortcuts();
    connect(&m_comparison, &StationComparison::rowsAboutToChange, this,
            &CompareDialog::keepSelection);
    connect(&m_comparison, &StationComparison::rowsChanged, this, &CompareDialog::restoreSelection);
    connect(&m_comparison, &StationComparison::choiceChanged, this, &CompareDialog::showPlan);
    connect(&m_comparison, &StationComparison::documentGone, this, &QDialog::reject);
    const int line = fontMetrics().height();
    resize(QSettings().value(sizeKey(), QSize(72 * line, 44 * line)).toSize());
    keepOnScreen(*this);
    restoreSelection();
    focusTable();
}

CompareDialog::~CompareDialog()
{
    QSettings().setValue(sizeKey(), size());
    m_comparison.disconnect(this);
    m_table->selectionModel()->disconnect(this);
}

QLayout *CompareDialog::makeTop()
{
    m_lists = new QComboBox;
    m_lists->setObjectName(QStringLiteral("compareList"));
    m_lists->setAccessibleName(qtTrId("kCompareList"));
    connect(m_lists, &QComboBox::activated, this, [this](int item) {
        const auto &lists = m_comparison.lists();
        m_comparison.showList(item == 0 ? std::nullopt
                                        : std::optional(lists[static_cast<std::size_t>(item - 1)]));
    });
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("compareSearch"));
    m_search->setPlaceholderText(qtTrId("kSearchPlaceholder"));
    m_search->setAccessibleName(qtTrId("kSearchPlaceholder"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, &m_comparison, &StationComparison::search);
    auto *title = new QLabel(qtTrId("kSearchTitle"));
    title->setBuddy(m_search);
    auto *row = new QHBoxLayout;
    row->addWidget(m_lists);
    row->addStretch();
    row->addWidget(title);
    row->addWidget(m_search, 1);
    return row;
}

QLayout *CompareDialog::makeKinds()
{
    auto *grid = new QGridLayout;
    for (const ComparisonKind kind : kindsInOrder) {
        if (!hasKind(kind, m_comparison.purpose()))
            continue;
        auto *box = new QCheckBox;
        box->setObjectName(QStringLiteral("compareKind%1").arg(static_cast<int>(kind)));
        box->setChecked(m_comparison.kinds().testFlag(kind));
        connect(box, &QCheckBox::toggled, this, &CompareDialog::showKinds);
        const auto place = static_cast<int>(m_kinds.size());
        grid->addWidget(box, place / kindsInLine, place % kindsInLine);
        m_kinds.emplace_back(kind, box);
    }
    return grid;
}

void CompareDialog::makeTable()
{
    m_table->setObjectName(QStringLiteral("compareTable"));
    m_table->setAccessibleName(qtTrId("kCompareTable"));
    m_table->setModel(&m_model);
    m_table->setAcceptDrops(false);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setItemDelegate(new TypedTextDelegate(m_table));
    m_table->setItemDelegateForColumn(ComparisonModel::Check, new CheckMarkDelegate(m_table));
    m_table->setColumnHidden(ComparisonModel::Check, !m_comparison.offersChecks());
    sizeRows(*m_table, fontMetrics());
    QHeaderView &header = *m_table->horizontalHeader();
    header.setStretchLastSection(true);
    const int letter = fontMetrics().averageCharWidth();
    const auto widen = [&header, letter](int column, int letters) {
        header.resizeSection(column, qMax(letters * letter, header.sectionSizeHint(column)));
    };
    widen(ComparisonModel::Check, 0);
    widen(ComparisonModel::List, 14);
    for (const int column : {ComparisonModel::NumberHere, ComparisonModel::NumberThere})
        widen(column, 9);
    for (const int column : {ComparisonModel::NameHere, ComparisonModel::NameThere})
        widen(column, 24);
    m_table->installEventFilter(this);
    connect(m_table, &DarkModeTableView::returnPressed, this, &CompareDialog::reveal);
    connect(m_table, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.column() != ComparisonModel::Check)
            reveal();
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CompareDialog::showSelected);
}

QLayout *CompareDialog::makeAspects()
{
    if (m_comparison.purpose() == Purpose::Order || m_comparison.purpose() == Purpose::Paste)
        return nullptr;
    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel(qtTrId("kTakeOver")));
    for (const auto &[aspect, title] : aspectTitles) {
        auto *box = new QCheckBox(qtTrId(title));
        box->setObjectName(QStringLiteral("compareTake%1").arg(static_cast<int>(aspect)));
        box->setChecked(m_comparison.takes(aspect));
        connect(box, &QCheckBox::toggled, this,
                [this, taken = aspect](bool isTaken) { m_comparison.take(taken, isTaken); });
        row->addWidget(box);
        m_aspects.emplace_back(aspect, box);
    }
    row->addStretch();
    return row;
}

QWidget *CompareDialog::makeButtons()
{
    const Purpose purpose = m_comparison.purpose();
    auto *buttons = new QDialogButtonBox;
    const auto add = [buttons](const char *title, const char *name) {
        QPushButton *button = buttons->addButton(qtTrId(title), QDialogButtonBox::ActionRole);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false); // Return is the table's
        return button;
    };
    if (purpose == Purpose::Compare) {
        m_takeSelected = add("kTakeOverSelected", "takeOverSelected");
        m_take = add("kTakeOverAll", "takeOverAll");
        connect(m_takeSelected, &QPushButton::clicked, this, &CompareDialog::takeOverSelected);
        connect(m_take, &QPushButton::clicked, &m_comparison, &StationComparison::takeOverAll);
    } else {
        m_take = add(purpose == Purpose::Paste ? "kComparePaste" : "kCompareApply", "compareApply");
        connect(m_take, &QPushButton::clicked, this, &CompareDialog::accept);
    }
    QPushButton *close = buttons->addButton(
        qtTrId(purpose == Purpose::Compare ? "kClose" : "kCancel"), QDialogButtonBox::RejectRole);
    close->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void CompareDialog::setMnemonics()
{
    QList<QAbstractButton *> controls;
    for (QPushButton *button : findChildren<QPushButton *>())
        controls.append(button);
    for (const auto &[aspect, box] : m_aspects)
        controls.append(box);
    QStringList titles{qtTrId("kSearchTitle").remove(u'&')};
    for (const QAbstractButton *control : controls)
        titles.append(control->text());
    titles = withMnemonics(titles);
    for (qsizetype i = 0; i < controls.size(); ++i)
        controls[i]->setText(titles[i + 1]);
    for (QLabel *label : findChildren<QLabel *>()) {
        if (label->buddy() == m_search)
            label->setText(titles.front());
    }
}

void CompareDialog::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, const std::function<void()> &slot) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, slot);
    };
    add(QKeySequence::Find, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    add(QKeySequence::Close, [this] { reject(); });
    if (isModal())
        return;
    add(QKeySequence::Undo, [this] { m_controller.undoing().undo(); });
    add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), [this] { m_controller.undoing().redo(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Y), [this] { m_controller.undoing().redo(); });
}

/// Escape leaves the search before it closes the window, and space marks rows wherever they are.
bool CompareDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if (key.modifiers() & ~Qt::KeypadModifier)
        return false;
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (watched == m_search) {
        const bool leaves = key.key() == Qt::Key_Escape;
        if (leaves)
            m_search->clear();
        if (!leaves && !isReturn && key.key() != Qt::Key_Down)
            return false;
        focusTable();
        return true;
    }
    if (watched != m_table || key.key() != Qt::Key_Space)
        return false;
    if (!key.isAutoRepeat())
        m_comparison.toggle(selected());
    return true;
}

void CompareDialog::focusTable()
{
    m_table->setFocus();
    if (!m_table->selectionModel()->hasSelection() && m_model.rowCount() > 0)
        m_table->goToRow(0);
}

void CompareDialog::setTabOrders()
{
    QWidget *before = m_lists;
    const auto follow = [&before](QWidget *next) {
        setTabOrder(before, next);
        before = next;
    };
    follow(m_search);
    for (const auto &[kind, box] : m_kinds)
        follow(box);
    follow(m_table);
    for (const auto &[aspect, box] : m_aspects)
        follow(box);
    if (m_takeSelected)
        follow(m_takeSelected);
    follow(m_take);
}

std::vector<std::size_t> CompareDialog::selected() const
{
    const QList<qsizetype> rows = selectedRows(*m_table->selectionModel());
    return {rows.begin(), rows.end()};
}

CompareDialog::RowKey CompareDialog::keyOf(std::size_t row) const
{
    const ComparisonRow &shown = m_comparison.row(row);
    return {shown.here.get(), shown.there.get()};
}

void CompareDialog::keepSelection()
{
    m_selectedKeys.clear();
    for (const std::size_t row : selected())
        m_selectedKeys.push_back(keyOf(row));
    std::sort(m_selectedKeys.begin(), m_selectedKeys.end());
    const int current = m_table->currentIndex().row();
    m_currentKey = current < 0 ? RowKey() : keyOf(static_cast<std::size_t>(current));
    m_scrolled = m_table->verticalScrollBar()->value();
}

void CompareDialog::restoreSelection()
{
    QList<qsizetype> rows;
    for (std::size_t row = 0; row < m_comparison.rowCount(); ++row) {
        if (std::binary_search(m_selectedKeys.begin(), m_selectedKeys.end(), keyOf(row)))
            rows.append(static_cast<qsizetype>(row));
    }
    selectRows(*m_table, rows);
    m_table->verticalScrollBar()->setValue(m_scrolled);
    m_table->setPlaceholderText(
        qtTrId(m_comparison.isEmpty() ? "kCompareEmpty" : "kCompareNoneShown"));
    showLists();
    showCounts();
    showPlan();
}

void CompareDialog::showLists()
{
    const auto &lists = m_comparison.lists();
    m_lists->clear();
    m_lists->addItem(qtTrId("kCompareAllLists"));
    int current = 0;
    for (const StationComparison::List &list : lists) {
        m_lists->addItem(titleOf(list));
        if (m_comparison.list() == list)
            current = m_lists->count() - 1;
    }
    m_lists->setCurrentIndex(current);
    m_lists->setVisible(lists.size() > 1);
    m_table->setColumnHidden(ComparisonModel::List,
                             lists.size() < 2 || m_comparison.list().has_value());
}

void CompareDialog::showCounts()
{
    for (const auto &[kind, box] : m_kinds)
        box->setText(QStringLiteral("%1 (%2)").arg(
            titleOf(kind, m_comparison.purpose()),
            QLocale().toString(static_cast<qlonglong>(m_comparison.count(kind)))));
    for (const auto &[aspect, box] : m_aspects) {
        const QString reason = m_comparison.reasonAgainst(aspect);
        box->setEnabled(reason.isEmpty());
        box->setToolTip(reason);
        box->setAccessibleDescription(reason);
    }
}

void CompareDialog::showPlan()
{
    m_plan = previewOf(m_comparison);
    const bool canGoOn =
        m_comparison.purpose() == Purpose::Order ||
        (m_comparison.purpose() == Purpose::Paste ? !m_comparison.checkedStations().empty()
                                                  : !m_comparison.planForAll().empty());
    m_take->setEnabled(canGoOn);
    m_take->setToolTip(canGoOn ? QString() : qtTrId("kPreviewNothing"));
    m_take->setAccessibleDescription(m_plan);
    showSelected();
}

/// What all that is checked comes to does not change with the selection.
void CompareDialog::showSelected()
{
    if (!m_takeSelected)
        return m_preview->setText(m_plan);
    const std::vector<std::size_t> rows = selected();
    const StationComparison::Parts parts = m_comparison.planFor(rows);
    const QString text = qtTrId("kPreviewSelected").arg(textOf(parts));
    m_preview->setText(rows.size() < 2 ? m_plan : m_plan + u'\n' + text);
    m_takeSelected->setEnabled(!parts.empty());
    m_takeSelected->setToolTip(parts.empty() ? qtTrId("kTipTakeSelected") : QString());
    m_takeSelected->setAccessibleDescription(text);
}

void CompareDialog::showKinds()
{
    ComparisonKinds kinds;
    for (const auto &[kind, box] : m_kinds)
        kinds.setFlag(kind, box->isChecked());
    m_comparison.showKinds(kinds);
}

/// The window goes first, so that what is asked or reported then has the editor's.
void CompareDialog::accept()
{
    const StationList stations = m_comparison.checkedStations();
    const MoveHere moveHere = m_moveHere;
    switch (m_comparison.purpose()) {
    case Purpose::Paste:
        QDialog::accept();
        if (moveHere)
            moveHere(stations);
        return;
    case Purpose::Order:
        QDialog::accept();
        return m_comparison.applyOrder();
    case Purpose::Import:
        QDialog::accept();
        return m_comparison.takeOverAll();
    case Purpose::Compare:
        return;
    }
}

void CompareDialog::takeOverSelected()
{
    m_comparison.takeOver(selected());
}

/// Those selected, of the list that the current row is of.
void CompareDialog::reveal()
{
    std::vector<std::size_t> rows = selected();
    const int current = m_table->currentIndex().row();
    if (current >= 0)
        rows.insert(rows.begin(), static_cast<std::size_t>(current));
    m_comparison.reveal(rows);
}

void showComparison(ViewController &controller, const ComparedWith &other, QWidget *window,
                    const CompareDialog::MoveHere &moveHere)
{
    if (!controller.stationDoc())
        return;
    auto *dialog = new CompareDialog(controller, other, window, moveHere);
    dialog->show();
    dialog->activateWindow();
}

} // namespace quillet
