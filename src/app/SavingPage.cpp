#include "app/SavingPage.h"

#include "files/Places.h"
#include "files/ShownPath.h"
#include "files/VersionStore.h"

#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quillet {

namespace {

/// Around "%1", as sizes are told elsewhere.
QString mebibytes()
{
    const QLocale locale;
    return locale.formattedDataSize(qint64{2} << 20, 0)
        .replace(locale.toString(2), QStringLiteral("%1"));
}

} // namespace

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
    addFlag(*column, Setting::KeepsVersions, qtTrId("kPrefKeepVersions"), note);
    auto *rows = new QFormLayout;
    rows->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    const auto add = [&](Setting setting, const char *title, const QString &unit) {
        auto *label = new QLabel;
        QSpinBox *number = makeNumber(setting, unit);
        addTitle(*label, qtTrId(title), number);
        rows->addRow(label, number);
    };
    add(Setting::VersionCount, "kPrefVersionCount", QStringLiteral("%1"));
    add(Setting::VersionSpace, "kPrefVersionSpace", mebibytes());
    follow(Setting::KeepsVersions, [this, rows] {
        for (int i = 0; i < rows->count(); ++i)
            rows->itemAt(i)->widget()->setEnabled(settings().isOn(Setting::KeepsVersions));
    });
    column->addLayout(rows);
    m_used->setWordWrap(true);
    m_used->setObjectName(QStringLiteral("versionsUsed"));
    m_showFolder->setObjectName(QStringLiteral("showVersionFolder"));
    m_showFolder->setAutoDefault(false); // Return in a field is not meant for it
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
                         : qtTrId("kVersionsUnreadableReason").arg(shownPath(m_versions.folder())));
    m_showFolder->setAccessibleDescription(m_used->text());
    m_showFolder->setEnabled(isThere(m_versions.folder()));
}

} // namespace quillet
