#include "editor/CompareDialog.h"

#include "editor/ComparisonFilter.h"
#include "editor/ComparisonTable.h"
#include "editor/ComparisonTexts.h"
#include "editor/SpokenLabel.h"
#include "editor/ViewController.h"
#include "files/Settings.h"
#include "framework/Mnemonics.h"
#include "framework/ScreenPlace.h"
#include "texts/TakeOverTexts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr std::array aspectTitles{std::pair{StationDifference::Number, "kTakeNumbers"},
                                  std::pair{StationDifference::Name, "kTakeNames"},
                                  std::pair{StationDifference::Skipped, "kTakeSkipped"},
                                  std::pair{StationDifference::Locked, "kTakeLocked"}};

QString sizeKey()
{
    return QStringLiteral("windows/Comparison/size");
}

/// What a side of the window is to be the next time: not what a screen without more room made it.
int sideToKeep(int now, int atFirst, int wanted, int room)
{
    return now == atFirst || now >= room ? std::max(now, wanted) : now;
}

SpokenLabel *makeText(const char *objectName)
{
    auto *label = new SpokenLabel;
    label->setObjectName(QLatin1String(objectName));
    return label;
}

} // namespace

CompareDialog::CompareDialog(ViewController &controller, const ComparedWith &other,
                             const Settings &settings, QWidget *parent, MoveHere moveHere)
    : QDialog(parent, Qt::Window), m_controller(controller),
      m_kept(std::make_shared<StationComparison>(controller, other)), m_comparison(*m_kept),
      m_moveHere(std::move(moveHere)), m_filter(new ComparisonFilter(m_comparison)),
      m_table(new ComparisonTable(m_comparison)), m_preview(makeText("comparePreview"))
{
    const bool isQuestion = other.purpose == Purpose::Order || other.purpose == Purpose::Paste;
    setObjectName(QStringLiteral("compareDialog"));
    setWindowTitle(titleOf(other).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
    setWindowModality(isQuestion ? Qt::WindowModal : Qt::NonModal);
    setAttribute(Qt::WA_DeleteOnClose);
    addControls();
    followTextSize(settings);
    addShortcuts();
    connect(m_filter, &ComparisonFilter::left, m_table, &ComparisonTable::focusRows);
    m_selectionShown.setSingleShot(true);
    connect(&m_selectionShown, &QTimer::timeout, this, &CompareDialog::showSelected);
    connect(m_table, &ComparisonTable::selectedRowsChanged, this,
            [this] { m_selectionShown.start(0); });
    connect(&m_comparison, &StationComparison::rowsChanged, this, &CompareDialog::showPlan);
    connect(&m_comparison, &StationComparison::choiceChanged, this, &CompareDialog::showPlan);
    connect(&m_comparison, &StationComparison::choiceChanged, this, &CompareDialog::speakChoice);
    connect(&m_comparison, &StationComparison::takenOver, m_preview, &SpokenLabel::speak);
    connect(&m_comparison, &StationComparison::documentGone, this, &QDialog::reject);
    const int line = fontMetrics().height();
    m_wantedSize = QSettings().value(sizeKey(), QSize(72 * line, 44 * line)).toSize();
    resize(m_wantedSize);
    keepOnScreen(*this);
    m_firstSize = size();
    // With more rows than the table needs at least, unless what is said needs their room.
    const int rows = 3 * m_table->verticalHeader()->defaultSectionSize();
    setMinimumHeight(qMin(height(), layout()->minimumSize().height() + rows));
    showPlan();
    m_table->focusRows();
}

/// What it shows goes before the comparison does, which a question may keep.
CompareDialog::~CompareDialog()
{
    const QSize room = screen()->availableGeometry().size() - frameGeometry().size() + size();
    const auto side = [&](auto of) {
        return sideToKeep((size().*of)(), (m_firstSize.*of)(), (m_wantedSize.*of)(), (room.*of)());
    };
    if (!isMaximized())
        QSettings().setValue(sizeKey(), QSize(side(&QSize::width), side(&QSize::height)));
    m_table->disconnect(this);
    delete m_table;
    delete m_filter;
}

void CompareDialog::followTextSize(const Settings &settings)
{
    const auto follow = [this, &settings] {
        m_table->setTextSize(settings.number(Setting::TextSize));
    };
    connect(&settings, &Settings::changed, m_table, [follow](Setting setting) {
        if (setting == Setting::TextSize)
            follow();
    });
    follow();
}

void CompareDialog::addControls()
{
    m_preview->setAlignment(Qt::AlignTop);
    const int lines = m_comparison.purpose() == Purpose::Compare ? 4 : 2;
    m_preview->setMinimumHeight(lines * fontMetrics().lineSpacing()); // so that nothing jumps
    auto *column = new QVBoxLayout(this);
    if (const QString &text = m_comparison.other().remark; !text.isEmpty()) {
        auto *remark = makeText("compareRemark");
        remark->setText(text);
        column->addWidget(remark);
    }
    column->addWidget(m_filter);
    column->addWidget(m_table, 1);
    if (QLayout *aspects = makeAspects())
        column->addLayout(aspects);
    column->addWidget(m_preview);
    column->addWidget(makeButtons());
    setMnemonics();
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
        box->setChecked(m_comparison.choice().takes(aspect));
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
        button->setAutoDefault(false); // Return shows the station
        return button;
    };
    if (purpose == Purpose::Compare) {
        m_takeSelected = add("kTakeOverSelected", "takeOverSelected");
        m_take = add("kTakeOverAll", "takeOverAll");
        connect(m_takeSelected, &QPushButton::clicked, this,
                [this] { m_comparison.takeOver(m_table->selected()); });
        connect(m_take, &QPushButton::clicked, &m_comparison, &StationComparison::takeOverAll);
    } else {
        m_take = add(purpose == Purpose::Paste ? "kComparePaste" : "kCompareApply", "compareApply");
        m_take->setAutoDefault(true);
        m_take->setDefault(true);
        connect(m_table, &DarkModeTableView::returnPressed, m_take, &QPushButton::click);
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
    m_filter->searchTitle().setText(titles.front());
}

void CompareDialog::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, const std::function<void()> &slot) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, slot);
    };
    add(QKeySequence::Find, [this] { m_filter->focusSearch(); });
    add(QKeySequence::Close, [this] { reject(); });
    if (isModal())
        return;
    add(QKeySequence::Undo, [this] { m_controller.undoing().undo(); });
    add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), [this] { m_controller.undoing().redo(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Y), [this] { m_controller.undoing().redo(); });
}

void CompareDialog::showPlan()
{
    for (const auto &[aspect, box] : m_aspects) {
        const QString reason = m_comparison.reasonAgainst(aspect);
        const QSignalBlocker blocker(box); // what is chosen is kept while nothing differs
        box->setChecked(reason.isEmpty() && m_comparison.choice().takes(aspect));
        box->setEnabled(reason.isEmpty());
        box->setToolTip(reason);
        box->setAccessibleDescription(reason);
    }
    m_plan = previewOf(m_comparison);
    const bool canGoOn =
        m_comparison.purpose() == Purpose::Order ||
        (m_comparison.purpose() == Purpose::Paste ? !m_comparison.checkedStations().empty()
                                                  : !m_comparison.planForAll().empty());
    if (!canGoOn && m_take->hasFocus())
        m_table->setFocus(); // rather than what is next to the button
    m_take->setEnabled(canGoOn);
    m_take->setToolTip(canGoOn ? QString() : m_plan);
    m_take->setAccessibleDescription(m_plan);
    showSelected();
}

/// What all that is checked comes to does not change with the selection.
void CompareDialog::showSelected()
{
    m_preview->setAccessibleName({}); // what was spoken is over
    if (!m_takeSelected)
        return m_preview->setText(m_plan);
    const std::vector<std::size_t> rows = m_table->selected();
    const StationComparison::Parts parts = m_comparison.planFor(rows);
    const auto any = [&](bool (StationComparison::*is)(std::size_t) const) {
        return std::any_of(rows.begin(), rows.end(),
                           [&](std::size_t row) { return (m_comparison.*is)(row); });
    };
    const QString text = rows.empty() ? qtTrId("kTipNoRow")
                         : any(&StationComparison::isChecked)
                             ? qtTrId("kPreviewSelected").arg(textOf(parts))
                         : any(&StationComparison::canBeChecked) ? qtTrId("kTipTakeSelected")
                                                                 : qtTrId("kTipTakeNothing");
    // Where nothing would change at all, or nothing is selected, that says enough.
    const bool isEnough = rows.empty() || m_comparison.planForAll().empty();
    m_preview->setText(isEnough ? m_plan : m_plan + u'\n' + text);
    m_takeSelected->setEnabled(!parts.empty());
    m_takeSelected->setToolTip(parts.empty() ? text : QString());
    m_takeSelected->setAccessibleDescription(text);
}

void CompareDialog::speakChoice()
{
    const QString mark = m_table->currentMark();
    m_preview->speak(mark.isEmpty() ? m_preview->text()
                                    : mark + QStringLiteral(". ") + m_preview->text());
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
        if (m_comparison.isStillSo()) {
            QDialog::accept();
            return m_comparison.applyOrder();
        }
        m_preview->setText(qtTrId("kPreviewAnew") + u' ' + m_plan);
        return m_preview->speak(m_preview->text());
    case Purpose::Import:
        QDialog::accept();
        return m_comparison.takeOverAll();
    case Purpose::Compare:
        return;
    }
}

void showComparison(ViewController &controller, const ComparedWith &other, const Settings &settings,
                    QWidget *window, const CompareDialog::MoveHere &moveHere)
{
    if (!controller.stationDoc())
        return;
    auto *dialog = new CompareDialog(controller, other, settings, window, moveHere);
    dialog->show();
    dialog->activateWindow();
}

} // namespace quillet
