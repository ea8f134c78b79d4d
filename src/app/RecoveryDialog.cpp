#include "app/RecoveryDialog.h"

#include "editor/RoomyCells.h"
#include "files/FileNames.h"
#include "files/Places.h"
#include "files/ShownPath.h"
#include "framework/Mnemonics.h"
#include "framework/PlainToolTip.h"
#include "framework/Prompts.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quillet {

namespace {

enum Column { Name, Folder, LastChange, Changes };
constexpr std::array columnTitles{"kRecoveryName", "kRecoveryFolder", "kRecoveryTime",
                                  "kRecoveryChanges"};

/// What the list was called; empty when that cannot be read.
QString nameOf(const RecoveryStore::Leftover &leftover)
{
    if (!leftover.state)
        return {};
    const QString &place = leftover.state->place();
    return place.isEmpty() ? qtTrId("kUntitled") : shownPath(QFileInfo(place).fileName());
}

/// An untitled list lies in none yet.
QString folderOf(const RecoveryStore::Leftover &leftover)
{
    if (!leftover.state)
        return leftover.folder->path();
    const QString &path = leftover.state->path;
    return path.isEmpty() ? QString() : QFileInfo(path).path();
}

/// Where a person finds what cannot be brought back.
QString detailOf(const RecoveryStore::Leftover &leftover)
{
    using Part = RecoveryFolder::Part;
    if (leftover.problem.isEmpty() || !leftover.folder->has(Part::Original))
        return leftover.problem;
    return leftover.problem + u'\n' +
           qtTrId("kRecoveryOriginalAt").arg(shownPath(leftover.folder->pathOf(Part::Original)));
}

} // namespace

RecoveryDialog::RecoveryDialog(std::vector<RecoveryStore::Leftover> leftovers, Prompts &prompts,
                               BringBack bringBack)
    : m_leftovers(std::move(leftovers)), m_prompts(prompts), m_bringBack(std::move(bringBack)),
      m_list(new QTableWidget), m_detail(new QLabel)
{
    setObjectName(QStringLiteral("recoveryDialog"));
    setWindowTitle(qtTrId("kRecoveryTitle"));
    auto *message = new QLabel(qtTrId("kRecoveryText"));
    message->setWordWrap(true);
    m_detail->setObjectName(QStringLiteral("recoveryDetail"));
    m_detail->setTextFormat(Qt::PlainText);
    m_detail->setWordWrap(true);
    m_detail->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    const QStringList titles =
        withMnemonics({qtTrId("kBringBack"), qtTrId("kLater"), qtTrId("kDiscard")});
    m_bringBackButton = new QPushButton(titles[0]);
    m_bringBackButton->setObjectName(QStringLiteral("bringBack"));
    m_bringBackButton->setDefault(true);
    auto *later = new QPushButton(titles[1]);
    later->setObjectName(QStringLiteral("later"));
    m_discardButton = new QPushButton(titles[2]);
    m_discardButton->setObjectName(QStringLiteral("discard"));
    // Every platform's own order has what throws away next to the default button.
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_bringBackButton);
    buttons->addWidget(later);
    buttons->addWidget(m_discardButton);

    makeRows();
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(12);
    rows->addWidget(message);
    rows->addWidget(m_list, 1);
    rows->addWidget(m_detail);
    rows->addLayout(buttons);
    connect(m_bringBackButton, &QPushButton::clicked, this, &RecoveryDialog::bringBackChosen);
    connect(later, &QPushButton::clicked, this, &RecoveryDialog::reject);
    connect(m_discardButton, &QPushButton::clicked, this, &RecoveryDialog::askToDiscard);
    connect(m_list, &QTableWidget::itemSelectionChanged, this, &RecoveryDialog::showState);
    connect(m_list, &QTableWidget::currentCellChanged, this, &RecoveryDialog::showState);
    showState();
    resize(fontMetrics().averageCharWidth() * 110, sizeHint().height());
    m_list->setFocus();
}

void RecoveryDialog::makeRows()
{
    m_list->setObjectName(QStringLiteral("recoveryList"));
    m_list->setAccessibleName(qtTrId("kRecoveryTitle"));
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setTabKeyNavigation(false);
    m_list->setShowGrid(false);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->verticalHeader()->hide();
    RoomyCells::applyTo(*m_list);
    QStringList titles;
    for (const char *id : columnTitles)
        titles.append(qtTrId(id));
    m_list->setColumnCount(static_cast<int>(titles.size()));
    m_list->setHorizontalHeaderLabels(titles);
    m_list->horizontalHeaderItem(Changes)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QHeaderView &header = *m_list->horizontalHeader();
    header.setHighlightSections(false);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(Folder, QHeaderView::Stretch);
    for (const RecoveryStore::Leftover &leftover : m_leftovers)
        addRow(leftover);
    m_list->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
}

/// What can be brought back is selected to begin with.
void RecoveryDialog::addRow(const RecoveryStore::Leftover &leftover)
{
    const int row = m_list->rowCount();
    const auto put = [this, row](Column column, const QString &text) {
        auto *item = new QTableWidgetItem(text);
        item->setToolTip(plainToolTip(text));
        m_list->setItem(row, column, item);
    };
    m_list->insertRow(row);
    put(Name, {});
    showName(row);
    put(Folder, shownPath(shortPath(folderOf(leftover))));
    if (leftover.state) {
        const QLocale locale;
        put(LastChange, locale.toString(leftover.state->changedAt, QLocale::ShortFormat));
        put(Changes, locale.toString(leftover.state->changes));
        m_list->item(row, Changes)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (row == 0)
        m_list->setCurrentCell(0, Name, QItemSelectionModel::NoUpdate);
    if (leftover.problem.isEmpty())
        m_list->selectionModel()->select(m_list->model()->index(row, Name),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

/// With the word for what cannot be brought back, as soon as that is known.
void RecoveryDialog::showName(int row)
{
    const RecoveryStore::Leftover &leftover = leftoverAt(row);
    QString name = nameOf(leftover);
    if (name.isEmpty())
        name = qtTrId("kRecoveryUnreadable");
    else if (!leftover.problem.isEmpty())
        name += QStringLiteral(u" \u2014 ") + qtTrId("kRecoveryUnreadable");
    m_list->item(row, Name)->setText(name);
    m_list->item(row, Name)->setToolTip(plainToolTip(name));
}

std::vector<int> RecoveryDialog::chosen() const
{
    std::vector<int> rows;
    for (int row = 0; row < m_list->rowCount(); ++row) {
        if (m_list->item(row, Name)->isSelected())
            rows.push_back(row);
    }
    return rows;
}

RecoveryStore::Leftover &RecoveryDialog::leftoverAt(int row)
{
    return m_leftovers.at(static_cast<std::size_t>(row));
}

/// Of several states of one file the latest comes back.
void RecoveryDialog::bringBackChosen()
{
    QStringList failures;
    QStringList paths;
    std::vector<int> done;
    for (const int row : chosen()) {
        RecoveryStore::Leftover &leftover = leftoverAt(row);
        if (!leftover.problem.isEmpty())
            continue;
        const QString name = nameOf(leftover);
        const QString path = leftover.state->path;
        const bool isOlder = std::any_of(paths.begin(), paths.end(), [&path](const QString &each) {
            return samePlace(each, path);
        });
        const QString reason = isOlder ? qtTrId("kRecoveryOlderReason") : m_bringBack(leftover);
        if (reason.isEmpty()) {
            done.push_back(row);
            paths.append(path);
        } else {
            failures.append(name + QLatin1String(": ") + reason);
            showName(row);
        }
    }
    removeRows(done);
    if (m_leftovers.empty())
        return accept();
    raise();
    activateWindow();
    tellFailures(qtTrId("kRecoveryFailedMessage"), failures);
}

void RecoveryDialog::tellFailures(const QString &message, const QStringList &failures)
{
    if (failures.isEmpty())
        return;
    Alert alert;
    alert.message = message;
    alert.informativeText = failures.join(u'\n');
    alert.buttons = {qtTrId("kOK")};
    m_prompts.showAlert(this, alert, [](const AlertAnswer &) {});
}

void RecoveryDialog::askToDiscard()
{
    enum { Cancel, Discard };
    const std::vector<int> rows = chosen();
    const auto count = static_cast<int>(rows.size());
    const QString name = nameOf(leftoverAt(rows[0]));
    Alert alert;
    if (count > 1)
        alert.message = qtTrId("kDiscardSomeMessage", count);
    else if (name.isEmpty())
        alert.message = qtTrId("kDiscardUnreadableMessage");
    else
        alert.message = qtTrId("kDiscardOneMessage").arg(name);
    alert.informativeText = qtTrId("kDiscardText");
    alert.buttons = {qtTrId("kCancel"), qtTrId("kDiscard")};
    alert.cancelButton = Cancel;
    alert.destructiveButton = Discard;
    m_prompts.showAlert(this, alert, [this](const AlertAnswer &answer) {
        if (answer.button == Discard)
            discardChosen();
    });
}

/// Nothing else can be selected while the question is open.
void RecoveryDialog::discardChosen()
{
    std::vector<int> discarded;
    QStringList failures;
    for (const int row : chosen()) {
        RecoveryFolder &folder = *leftoverAt(row).folder;
        if (folder.remove())
            discarded.push_back(row);
        else
            failures.append(shownPath(shortPath(folder.path())));
    }
    removeRows(discarded);
    if (m_leftovers.empty())
        return accept();
    tellFailures(qtTrId("kDiscardFailedMessage"), failures);
}

void RecoveryDialog::removeRows(const std::vector<int> &rows)
{
    {
        const QSignalBlocker quiet(m_list); // until both are without the rows
        for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
            m_leftovers.erase(m_leftovers.begin() + *row);
            m_list->removeRow(*row);
        }
    }
    if (!m_leftovers.empty() && !rows.empty() && chosen().empty())
        m_list->selectRow(std::min(rows.front(), m_list->rowCount() - 1));
    showState();
}

void RecoveryDialog::showState()
{
    const std::vector<int> rows = chosen();
    m_discardButton->setEnabled(!rows.empty());
    m_bringBackButton->setEnabled(std::any_of(
        rows.begin(), rows.end(), [this](int row) { return leftoverAt(row).problem.isEmpty(); }));
    const int row = m_list->currentRow();
    const QString detail = row < 0 || row >= static_cast<int>(m_leftovers.size())
                               ? QString()
                               : detailOf(leftoverAt(row));
    m_detail->setText(detail);
    m_detail->setVisible(!detail.isEmpty());
}

} // namespace quillet
