#include "editor/ColumnsMenu.h"

#include "editor/ShownColumns.h"
#include "editor/ViewController.h"
#include "framework/Mnemonics.h"
#include "texts/StationDetails.h"

#include <QHeaderView>
#include <QTableView>

#include <algorithm>

namespace quillet {

ColumnsMenu::ColumnsMenu(QTableView &table, ViewController &controller, Settings &settings,
                         QWidget *parent)
    : QMenu(qtTrId("kMenuColumns"), parent), m_controller(controller),
      m_columns(*new ShownColumns(table, settings)) // which the table owns
{
    setObjectName(QStringLiteral("columnsMenu"));
    setToolTipsVisible(true);
    addItems();
    connect(this, &QMenu::aboutToShow, this, &ColumnsMenu::validate);

    connect(&controller, &ViewController::documentChanged, &m_columns,
            [this](const TLLDocument *document) {
                m_columns.useVariant(document && document->isLegacyFormat());
            });
    QHeaderView *header = table.horizontalHeader();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this,
            [this, header](const QPoint &place) { popup(header->mapToGlobal(place)); });
    validate();
}

void ColumnsMenu::addItems()
{
    QStringList names;
    for (const StationColumn &column : stationColumns)
        names.append(qtTrId(column.fullName));
    names = withMnemonics(names << qtTrId("kUsualColumns"));
    m_usual = new QAction(names.takeLast(), this);
    m_usual->setObjectName(QStringLiteral("useUsualColumns"));
    connect(m_usual, &QAction::triggered, &m_columns, &ShownColumns::useUsual);
    for (int column = 0; column < names.size(); ++column) {
        QAction *item = addAction(names[column]);
        item->setObjectName(stationColumns.at(static_cast<std::size_t>(column)).identifier);
        item->setCheckable(true);
        connect(item, &QAction::triggered, &m_columns,
                [this, column](bool shown) { m_columns.setShown(column, shown); });
        m_items.append(item);
    }
    addSeparator();
    addAction(m_usual);
}

void ColumnsMenu::validate()
{
    for (int column = 0; column < m_items.size(); ++column) {
        const QString reason = reasonAgainst(column);
        m_items[column]->setChecked(m_columns.isShown(column));
        m_items[column]->setEnabled(reason.isEmpty());
        m_items[column]->setToolTip(reason);
    }
    m_usual->setEnabled(!m_columns.areUsual());
    m_usual->setToolTip(m_usual->isEnabled() ? QString() : qtTrId("kTipColumnsUsual"));
}

/// Why the column cannot be hidden, or not be shown; empty when it can.
QString ColumnsMenu::reasonAgainst(int column) const
{
    const StationColumn &facts = stationColumns.at(static_cast<std::size_t>(column));
    if (facts.use == ColumnUse::Always)
        return qtTrId("kTipColumnAlwaysShown");
    const StationListPtr &list = m_controller.shown().base();
    const bool isOffered =
        m_columns.isShown(column) || facts.use == ColumnUse::Usual ||
        (list && std::any_of(list->begin(), list->end(), [&facts](const StationPtr &station) {
             return isTold(*station, facts.content);
         }));
    return isOffered ? QString() : qtTrId("kTipColumnNotTold");
}

} // namespace quillet
