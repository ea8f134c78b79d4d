#include "editor/VersionsDialog.h"

#include "editor/RoomyCells.h"
#include "editor/ViewController.h"
#include "framework/Mnemonics.h"
#include "framework/WaitCursor.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quillet {

namespace {

enum Column { Time, Size, Stations, Difference };

QLabel *makeLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText); // names of files may look like markup
    label->setWordWrap(true);
    return label;
}

} // namespace

VersionsDialog::VersionsDialog(ViewController &controller, QWidget *parent)
    : QDialog(parent), m_controller(controller), m_versions(*controller.stationDoc()),
      m_list(makeList()), m_reason(makeLabel({}))
{
    setObjectName(QStringLiteral("versionsDialog"));
    setWindowTitle(qtTrId("kVersionsTitle"));
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_DeleteOnClose);
    m_reason->setObjectName(QStringLiteral("versionReason"));
    m_reason->setAlignment(Qt::AlignTop);
    m_reason->setMinimumHeight(3 * fontMetrics().lineSpacing()); // so that nothing jumps
    const QStringList titles = withMnemonics(
        {qtTrId("kVersionOpen"), qtTrId("kPutBack"), qtTrId("kVersionCompare"), qtTrId("kClose")});
    auto *buttons = new QDialogButtonBox;
    m_open = buttons->addButton(titles[0], QDialogButtonBox::ActionRole);
    m_open->setObjectName(QStringLiteral("openVersion"));
    m_putBack = buttons->addButton(titles[1], QDialogButtonBox::ActionRole);
    m_putBack->setObjectName(QStringLiteral("putBackVersion"));
    m_compare = buttons->addButton(titles[2], QDialogButtonBox::ActionRole);
    m_compare->setObjectName(QStringLiteral("compareVersion"));
    buttons->addButton(titles[3], QDialogButtonBox::RejectRole);
    auto *column = new QVBoxLayout(this);
    column->addWidget(
        makeLabel(qtTrId("kVersionsIntro").arg(controller.stationDoc()->displayName())));
    column->addWidget(m_list, 1);
    column->addWidget(m_reason);
    column->addWidget(buttons);
    m_open->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_open, &QPushButton::clicked, this, &VersionsDialog::openChosen);
    connect(m_putBack, &QPushButton::clicked, this, &VersionsDialog::putBackChosen);
    connect(m_compare, &QPushButton::clicked, this, &VersionsDialog::compareChosen);
    connect(m_list, &QTableWidget::currentItemChanged, this, &VersionsDialog::showChoice);
    connect(m_list, &QTableWidget::itemDoubleClicked, this, &VersionsDialog::openChosen);
    connect(&m_versions, &EarlierVersions::rowRead, this, &VersionsDialog::showRow);
    for (int row = 0; row < m_list->rowCount(); ++row)
        showRow(row);
    m_list->resizeColumnsToContents();
    m_list->setCurrentCell(0, 0);
    const int line = fontMetrics().height();
    resize(56 * line, 26 * line);
    m_list->setFocus();
}

QTableWidget *VersionsDialog::makeList() const
{
    auto *list = new QTableWidget(static_cast<int>(m_versions.rows().size()), 4);
    RoomyCells::applyTo(*list);
    list->setObjectName(QStringLiteral("versionList"));
    list->setAccessibleName(qtTrId("kVersionsTitle"));
    list->setHorizontalHeaderLabels({qtTrId("kVersionTime"), qtTrId("kVersionSize"),
                                     qtTrId("kVersionStations"), qtTrId("kVersionDifference")});
    list->horizontalHeaderItem(Stations)->setToolTip(qtTrId("kTipVersionStations"));
    for (const Column each : {Size, Stations})
        list->horizontalHeaderItem(each)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setAlternatingRowColors(true);
    list->setShowGrid(false);
    list->setTabKeyNavigation(false);
    list->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents); // for what is long
    list->verticalHeader()->hide();
    list->horizontalHeader()->setStretchLastSection(true);
    QObject::connect(list->horizontalHeader(), &QHeaderView::sectionResized, list,
                     &QTableWidget::resizeRowsToContents);
    list->horizontalHeader()->setHighlightSections(false);
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int row = 0; row < list->rowCount(); ++row) {
        for (const Column each : {Time, Size, Stations, Difference}) {
            auto *item = new QTableWidgetItem;
            const bool isNumber = each == Size || each == Stations;
            item->setTextAlignment((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
            list->setItem(row, each, item);
        }
    }
    return list;
}

void VersionsDialog::showRow(int row)
{
    const auto index = static_cast<std::size_t>(row);
    const EarlierVersions::Row &shown = m_versions.rows()[index];
    const QString time = m_versions.timeText(index);
    m_list->item(row, Time)->setText(shown.version.isFirst ? qtTrId("kVersionFirst").arg(time)
                                                           : time);
    m_list->item(row, Size)->setText(
        QLocale().formattedDataSize(shown.version.size, 1, QLocale::DataSizeSIFormat));
    if (shown.state == EarlierVersions::Row::State::Read)
        m_list->item(row, Stations)->setText(QLocale().toString(shown.stations));
    const QString difference = m_versions.differenceText(index);
    m_list->item(row, Difference)->setText(difference);
    m_list->item(row, Difference)->setToolTip(difference);
    if (chosen() == index)
        showChoice();
}

std::optional<std::size_t> VersionsDialog::chosen() const
{
    const int row = m_list->currentRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

/// A difference may be longer than its column is wide.
void VersionsDialog::showChoice()
{
    const std::optional<std::size_t> row = chosen();
    if (!row)
        return;
    const QString reason = m_versions.reasonAgainstPuttingBack(*row);
    const QString difference = m_versions.differenceText(*row);
    m_open->setEnabled(m_versions.canBeOpened(*row));
    m_compare->setEnabled(m_open->isEnabled());
    m_putBack->setEnabled(reason.isEmpty());
    m_putBack->setToolTip(reason);
    m_putBack->setAccessibleDescription(reason);
    const QString next = reason.isEmpty() ? qtTrId("kPutBackText") : reason;
    m_reason->setText(next == difference ? next : difference + u'\n' + next);
}

void VersionsDialog::openChosen()
{
    const std::optional<std::size_t> row = chosen();
    if (!row || !m_open->isEnabled())
        return;
    QByteArray bytes;
    Error error;
    const bool isRead = m_versions.readBytes(*row, bytes, error);
    const QString path = m_versions.suggestedPath(*row);
    accept();
    if (isRead)
        emit openRequested(bytes, path);
    else
        m_controller.showError(error.text(), qtTrId("kLoadingProblem"));
}

void VersionsDialog::compareChosen()
{
    const std::optional<std::size_t> row = chosen();
    if (!row)
        return;
    QByteArray bytes;
    Error error;
    const bool isRead = m_versions.readBytes(*row, bytes, error);
    const QString name =
        qtTrId("kCompareNameVersion")
            .arg(m_controller.stationDoc()->displayName(), m_versions.timeText(*row));
    accept();
    if (isRead)
        m_controller.comparing().compareWithBytes(bytes, name);
    else
        m_controller.showError(error.text(), qtTrId("kLoadingProblem"));
}

void VersionsDialog::putBackChosen()
{
    const std::optional<std::size_t> row = chosen();
    if (!row)
        return;
    QString reason;
    {
        const WaitCursor wait(m_versions.rows()[*row].version.size);
        reason = m_versions.putBack(*row, m_controller);
    }
    accept();
    if (!reason.isEmpty())
        m_controller.showError(reason, qtTrId("kPutBackFailed"));
}

} // namespace quillet
