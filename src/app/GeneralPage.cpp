#include "app/GeneralPage.h"

#include "texts/Translations.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quillet {

GeneralPage::GeneralPage(Settings &settings)
    : PreferencesPage(settings, QStringLiteral("generalPage"), qtTrId("kPrefGeneral")),
      m_language(new QComboBox)
{
    m_language->setObjectName(Settings::factsOf(Setting::Language).key);
    m_language->addItem(qtTrId("kPrefLanguageSystem"), QString());
    QList<std::pair<QString, QString>> languages; // their own names first, which take reading
    for (const QString &language : textLanguages())
        languages.append({ownNameOf(language), language});
    std::sort(languages.begin(), languages.end(), [](const auto &a, const auto &b) {
        return QString::localeAwareCompare(a.first, b.first) < 0;
    });
    for (const auto &[name, language] : languages)
        m_language->addItem(name, language);
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

} // namespace quillet
