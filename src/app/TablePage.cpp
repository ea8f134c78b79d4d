#include "app/TablePage.h"

#include "editor/ColumnState.h"
#include "texts/StationColumns.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quillet {

TablePage::TablePage(Settings &settings)
    : PreferencesPage(settings, QStringLiteral("tablePage"), qtTrId("kPrefTable")),
      m_kind(new QComboBox), m_group(new QGroupBox)
{
    m_kind->setObjectName(QStringLiteral("columnsKind"));
    m_kind->addItem(qtTrId("kPrefXMLLists"), static_cast<int>(Setting::XMLColumns));
    m_kind->addItem(qtTrId("kPrefJSONLists"), static_cast<int>(Setting::JSONColumns));
    auto *sizeTitle = new QLabel, *kindTitle = new QLabel;
    QSpinBox *size = makeNumber(Setting::TextSize, qtTrId("kPrefPercent"));
    addTitle(*sizeTitle, qtTrId("kPrefTextSize"), size);
    addTitle(*kindTitle, qtTrId("kPrefColumns"), m_kind);
    auto *rows = new QFormLayout;
    rows->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    rows->addRow(sizeTitle, size);
    rows->addRow(kindTitle, m_kind);
    auto *column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addWidget(m_group);
    column->addStretch();
    addColumns();
    follow(Setting::XMLColumns, [this] { showColumns(); });
    follow(Setting::JSONColumns, [this] { showColumns(); });
    connect(m_kind, &QComboBox::currentIndexChanged, this, &TablePage::showColumns);
}

/// Too many for a letter each. They are read downwards.
void TablePage::addColumns()
{
    constexpr int besideEachOther = 2;
    constexpr int rows = (int(stationColumns.size()) + besideEachOther - 1) / besideEachOther;
    m_group->setObjectName(QStringLiteral("columns"));
    auto *grid = new QGridLayout(m_group);
    for (const StationColumn &facts : stationColumns) {
        const int column = columnOf(facts.content);
        auto *box = new QCheckBox(qtTrId(facts.fullName).replace(u'&', QLatin1String("&&")));
        box->setObjectName(facts.identifier);
        if (facts.use == ColumnUse::Always) {
            box->setEnabled(false);
            box->setToolTip(qtTrId("kTipColumnAlwaysShown"));
        }
        connect(box, &QCheckBox::toggled, this,
                [this, column](bool isShown) { setColumn(column, isShown); });
        grid->addWidget(box, column % rows, column / rows);
        m_columns.push_back(box);
    }
}

Setting TablePage::kind() const
{
    return static_cast<Setting>(m_kind->currentData().toInt());
}

void TablePage::showColumns()
{
    const ColumnState state = ColumnState::of(settings().texts(kind()));
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const QSignalBlocker quiet(m_columns[i]);
        m_columns[i]->setChecked(state.isShown(static_cast<int>(i)));
    }
    m_group->setAccessibleName(qtTrId("kPrefColumns") + u' ' + m_kind->currentText());
}

void TablePage::setColumn(int column, bool isShown)
{
    ColumnState state = ColumnState::of(settings().texts(kind()));
    state.setShown(column, isShown);
    settings().set(kind(), state.texts());
}

} // namespace quillet
