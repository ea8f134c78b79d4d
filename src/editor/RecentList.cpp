#include "editor/RecentList.h"

#include "editor/RecentFileDelegate.h"
#include "files/FileNames.h"
#include "files/ShownPath.h"
#include "framework/PlainToolTip.h"
#include "framework/RecentFiles.h"
#include "texts/ShownTexts.h"

#include <QContextMenuEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>

namespace quillet {

namespace {

constexpr int pathRole = Qt::UserRole + 10;
constexpr int fewestRows = 2;
constexpr int wantedRows = 3;

/// The set and the number of stations, as far as they are known.
QString factsText(const RecentFacts &facts)
{
    QStringList texts;
    if (!facts.origin.isEmpty())
        texts.append(drawnName(facts.origin));
    if (facts.entries)
        texts.append(QStringLiteral("%1 %2").arg(
            QLocale().toString(*facts.entries),
            qtTrId("kStations", static_cast<int>(qMin(*facts.entries, qint64{1'000'000})))));
    return texts.join(QLatin1String(", "));
}

} // namespace

RecentList::RecentList(RecentFiles &files, QWidget *parent) : QListWidget(parent), m_files(files)
{
    setObjectName(QStringLiteral("recentList"));
    setItemDelegate(new RecentFileDelegate(this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    connect(this, &QListWidget::itemClicked, this, &RecentList::choose);
    connect(&m_files, &RecentFiles::changed, this, &RecentList::fill);
    fill();
}

void RecentList::fill()
{
    const int row = currentRow();
    clear();
    for (const RecentFile &file : m_files.files()) {
        const QFileInfo info(file.path);
        const QString name = shownPath(info.fileName());
        const QString folder = shownPath(shortPath(info.path()));
        const QString facts = factsText(file.facts);
        const QString date = file.usedAt.isValid() ? QLocale().toString(file.usedAt.toLocalTime(),
                                                                        QLocale::ShortFormat)
                                                   : QString();
        auto *item = new QListWidgetItem(name, this);
        item->setData(pathRole, file.path);
        item->setData(RecentFileDelegate::FolderRole, folder);
        item->setData(RecentFileDelegate::FactsRole, facts);
        item->setData(RecentFileDelegate::DateRole, date);
        QStringList spoken{name, facts, date, folder};
        spoken.removeAll(QString());
        item->setData(Qt::AccessibleTextRole, spoken.join(QLatin1String(", ")));
        item->setToolTip(plainToolTip(shownPath(readable(file.path))));
    }
    setCurrentRow(qMin(qMax(row, 0), count() - 1),
                  hasFocus() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate);
    setMaximumHeight(heightOf(count()));
    updateGeometry();
    emit filled();
}

int RecentList::heightOf(int rows) const
{
    return rows * sizeHintForRow(0) + 2 * frameWidth();
}

QSize RecentList::sizeHint() const
{
    return {QListWidget::sizeHint().width(), heightOf(qMin(count(), wantedRows))};
}

QSize RecentList::minimumSizeHint() const
{
    return {20 * fontMetrics().averageCharWidth(), heightOf(qMin(count(), fewestRows))};
}

void RecentList::choose(const QListWidgetItem *item)
{
    if (item)
        emit chosen(item->data(pathRole).toString());
}

void RecentList::removeCurrent()
{
    if (const QListWidgetItem *item = currentItem())
        m_files.remove(item->data(pathRole).toString());
}

void RecentList::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return choose(currentItem());
    case Qt::Key_Delete:
        return removeCurrent();
    default:
        QListWidget::keyPressEvent(event);
    }
}

/// By the keyboard one sees what Return would open.
void RecentList::focusInEvent(QFocusEvent *event)
{
    QListWidget::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && currentItem())
        currentItem()->setSelected(true);
}

void RecentList::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
    const QListWidgetItem *item = isByMouse ? itemAt(event->pos()) : currentItem();
    if (!item)
        return;
    const QString path = item->data(pathRole).toString();
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(qtTrId("kOpen"), this, [this, path] { emit chosen(path); });
    menu->addAction(qtTrId("kRemoveFromList"), &m_files, [this, path] { m_files.remove(path); });
    menu->popup(isByMouse ? event->globalPos()
                          : viewport()->mapToGlobal(visualItemRect(item).center()));
}

} // namespace quillet
