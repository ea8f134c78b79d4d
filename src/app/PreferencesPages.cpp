#include "app/PreferencesPages.h"

#include "editor/ColumnState.h"
#include "files/Places.h"
#include "texts/StationColumns.h"
#include "texts/Translations.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace quillet {

namespace {

constexpr int stepOfText = 10;  // percent
constexpr int stepOfSpace = 50; // MiB
constexpr int fewestRows = 6;   // of the columns, on a small screen

} // namespace

GeneralPage::GeneralPage(Settings &settings)
    : PreferencesPage(settings, QStringLiteral("generalPage"), qtTrId("kPrefGeneral")),
      m_language(new QComboBox)
{
    m_language->setObjectName(Settings::factsOf(Setting::Language).key);
    m_language->addItem(qtTrId("kPrefLanguageSystem"), QString());
    QStringList languages = textLanguages();
    std::sort(languages.begin(), languages.end(), [](const QString &a, const QString &b) {
        return QString::localeAwareCompare(ownNameOf(a), ownNameOf(b)) < 0;
    });
    for (const QString &language : languages)
        m_language->addItem(ownNameOf(language), language);
    auto *title = new QLabel;
    addTitle(*title, qtTrId("kPrefLanguage"), m_language);
    auto *rows = new QFormLayout;
    rows->addRow(title, m_language);
    auto *column = new QVBoxLayout(this);
    column->addLayout(rows);
    const QString note = qtTrId("kPrefLanguageNote");
    m_language->setAccessibleDescription(note);
    addNote(*column, note);
    column->addStretch();
    follow(Setting::Language, [this] { showLanguage(); });
    connect(m_language, &QComboBox::activated, this,
            [this] { this->settings().set(Setting::Language, m_language->currentData()); });
}

/// Of a country, for which there are no other texts, that of the language.
void GeneralPage::showLanguage()
{
    const QString chosen = settings().text(Setting::Language);
    const QString language =
        hasTexts(chosen) ? QLocale::languageToCode(QLocale(chosen).language()) : QString();
    m_language->setCurrentIndex(qMax(0, m_language->findData(language)));
}

TablePage::TablePage(Settings &settings)
    : PreferencesPage(settings, QStringLiteral("tablePage"), qtTrId("kPrefTable")),
      m_kind(new QComboBox), m_columns(new QListWidget)
{
    m_kind->setObjectName(QStringLiteral("columnsKind"));
    m_columns->setObjectName(QStringLiteral("columns"));
    m_kind->addItem(qtTrId("kPrefXMLLists"), static_cast<int>(Setting::XMLColumns));
    m_kind->addItem(qtTrId("kPrefJSONLists"), static_cast<int>(Setting::JSONColumns));
    for (const StationColumn &column : stationColumns) {
        auto *item = new QListWidgetItem(qtTrId(column.fullName), m_columns);
        item->setData(Qt::UserRole, columnOf(column.content));
        if (column.use == ColumnUse::Always) {
            item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
            item->setToolTip(qtTrId("kTipColumnAlwaysShown"));
        }
    }
    auto *sizeTitle = new QLabel, *kindTitle = new QLabel;
    QSpinBox *size = makeNumber(Setting::TextSize, qtTrId("kPrefPercent"), stepOfText);
    addTitle(*sizeTitle, qtTrId("kPrefTextSize"), size);
    addTitle(*kindTitle, qtTrId("kPrefColumns"), m_kind);
    auto *rows = new QFormLayout;
    rows->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    rows->addRow(sizeTitle, size);
    rows->addRow(kindTitle, m_kind);
    auto *column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addWidget(m_columns, 1);
    follow(Setting::XMLColumns, [this] { showColumns(); });
    follow(Setting::JSONColumns, [this] { showColumns(); });
    m_columns->setSpacing(2);
    m_columns->setMinimumHeight(fewestRows * fontMetrics().height());
    connect(m_kind, &QComboBox::currentIndexChanged, this, &TablePage::showColumns);
    connect(m_columns, &QListWidget::itemChanged, this,
            [this](const QListWidgetItem *item) { setColumn(*item); });
}

Setting TablePage::kind() const
{
    return static_cast<Setting>(m_kind->currentData().toInt());
}

void TablePage::showColumns()
{
    const ColumnState state = ColumnState::of(settings().texts(kind()));
    const QSignalBlocker quiet(m_columns);
    for (int row = 0; row < m_columns->count(); ++row) {
        QListWidgetItem &item = *m_columns->item(row);
        const bool isShown = state.isShown(item.data(Qt::UserRole).toInt());
        item.setCheckState(isShown ? Qt::Checked : Qt::Unchecked);
    }
    m_columns->viewport()->update();
    m_columns->setAccessibleName(qtTrId("kPrefColumns") + u' ' + m_kind->currentText());
}

void TablePage::setColumn(const QListWidgetItem &item)
{
    ColumnState state = ColumnState::of(settings().texts(kind()));
    state.setShown(item.data(Qt::UserRole).toInt(), item.checkState() == Qt::Checked);
    settings().set(kind(), state.texts());
}

SavingPage::SavingPage(Settings &settings, const VersionStore &versions)
    : PreferencesPage(settings, QStringLiteral("savingPage"), qtTrId("kPrefSaving")),
      m_versions(versions), m_used(new QLabel), m_showFolder(new QPushButton)
{
    auto *column = new QVBoxLayout(this);
    QVBoxLayout *unsaved = addGroup("kPrefUnsaved");
    const QString changesNote = qtTrId("kPrefKeepChangesNote");
    addFlag(*unsaved, Setting::KeepsChanges, qtTrId("kPrefKeepChanges"), changesNote);
    addNote(*unsaved, changesNote);
    addVersions();
    QVBoxLayout *questions = addGroup("kPrefQuestions");
    const QString questionsNote = qtTrId("kPrefQuestionsNote");
    addFlag(*questions, Setting::RepairsJSONLists, qtTrId("kPrefRepairJSON"), questionsNote);
    addNote(*questions, questionsNote);
    column->addStretch();
}

QVBoxLayout *SavingPage::addGroup(const char *title)
{
    auto *group = new QGroupBox(qtTrId(title));
    static_cast<QVBoxLayout *>(layout())->addWidget(group);
    return new QVBoxLayout(group);
}

void SavingPage::addVersions()
{
    QVBoxLayout *column = addGroup("kPrefVersions");
    const QString note = qtTrId("kPrefVersionsNote");
    const QCheckBox *keeps =
        addFlag(*column, Setting::KeepsVersions, qtTrId("kPrefKeepVersions"), note);
    auto *rows = new QFormLayout;
    rows->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    const auto add = [&](Setting setting, const char *title, const QString &unit, int step) {
        auto *label = new QLabel;
        QSpinBox *number = makeNumber(setting, unit, step);
        addTitle(*label, qtTrId(title), number);
        rows->addRow(label, number);
        for (QWidget *each : {static_cast<QWidget *>(label), static_cast<QWidget *>(number)}) {
            each->setEnabled(keeps->isChecked());
            connect(keeps, &QCheckBox::toggled, each, &QWidget::setEnabled);
        }
    };
    add(Setting::VersionCount, "kPrefVersionCount", QStringLiteral("%1"), 1);
    add(Setting::VersionSpace, "kPrefVersionSpace", QStringLiteral("%1 MiB"), stepOfSpace);
    column->addLayout(rows);
    m_used->setObjectName(QStringLiteral("versionsUsed"));
    m_showFolder->setObjectName(QStringLiteral("showVersionFolder"));
    addTitle(*m_showFolder, qtTrId("kPrefShowFolder"));
    connect(m_showFolder, &QPushButton::clicked, this, &SavingPage::versionFolderRequested);
    auto *used = new QHBoxLayout;
    used->addWidget(m_used, 1);
    used->addWidget(m_showFolder);
    column->addLayout(used);
    addNote(*column, note);
}

bool SavingPage::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        showUsed(); // a list may have been saved meanwhile
    return PreferencesPage::event(event);
}

void SavingPage::showEvent(QShowEvent *event)
{
    showUsed();
    PreferencesPage::showEvent(event);
}

void SavingPage::showUsed()
{
    const std::optional<qint64> used = m_versions.used();
    m_used->setText(used ? qtTrId("kPrefVersionsUsed").arg(QLocale().formattedDataSize(*used, 1))
                         : qtTrId("kVersionsUnreadableReason").arg(m_versions.folder()));
    m_showFolder->setAccessibleDescription(m_used->text());
    m_showFolder->setEnabled(isThere(m_versions.folder()));
}

} // namespace quillet
