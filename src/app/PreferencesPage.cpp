#include "app/PreferencesPage.h"

#include "framework/Mnemonics.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace quillet {

PreferencesPage::PreferencesPage(Settings &settings, const QString &name, const QString &title)
    : m_settings(settings), m_title(title)
{
    setObjectName(name);
}

bool PreferencesPage::isUsual() const
{
    return std::all_of(m_shown.begin(), m_shown.end(),
                       [this](Setting setting) { return m_settings.isUsual(setting); });
}

void PreferencesPage::useUsual()
{
    m_settings.useUsual(m_shown);
}

void PreferencesPage::setMnemonics(const QStringList &taken)
{
    QStringList texts = taken;
    for (const Titled &each : m_titles)
        texts.append(each.text);
    texts = withMnemonics(texts).sliced(taken.size());
    for (std::size_t i = 0; i < m_titles.size(); ++i) {
        const QString &text = texts[static_cast<qsizetype>(i)];
        if (auto *button = qobject_cast<QAbstractButton *>(m_titles[i].widget))
            button->setText(text);
        else if (auto *label = qobject_cast<QLabel *>(m_titles[i].widget))
            label->setText(text);
    }
}

void PreferencesPage::follow(Setting setting, const std::function<void()> &show)
{
    if (!m_shown.contains(setting))
        m_shown.append(setting);
    connect(&m_settings, &Settings::changed, this, [setting, show](Setting changed) {
        if (changed == setting)
            show();
    });
    show();
}

void PreferencesPage::addTitle(QWidget &titled, const QString &text, QWidget *control)
{
    m_titles.push_back({&titled, text});
    if (auto *label = qobject_cast<QLabel *>(&titled)) {
        label->setText(text);
        label->setBuddy(control);
    }
}

void PreferencesPage::addFlag(QBoxLayout &layout, Setting setting, const QString &text,
                              const QString &note)
{
    auto *box = new QCheckBox(text);
    box->setObjectName(Settings::factsOf(setting).key);
    box->setAccessibleDescription(note);
    addTitle(*box, text);
    follow(setting, [this, box, setting] {
        const QSignalBlocker showsOnly(box); // nothing is set by it
        box->setChecked(m_settings.isOn(setting));
    });
    connect(box, &QCheckBox::toggled, this,
            [this, setting](bool on) { m_settings.set(setting, on); });
    layout.addWidget(box);
}

QSpinBox *PreferencesPage::makeNumber(Setting setting, const QString &unit)
{
    const SettingFacts &facts = Settings::factsOf(setting);
    auto *box = new QSpinBox;
    box->setObjectName(facts.key);
    box->setRange(facts.least, facts.most);
    box->setSingleStep(facts.step);
    box->setPrefix(unit.section(QLatin1String("%1"), 0, 0));
    box->setSuffix(unit.section(QLatin1String("%1"), 1));
    box->setKeyboardTracking(false); // half a number is none
    follow(setting, [this, box, setting] {
        const QSignalBlocker showsOnly(box);
        box->setValue(m_settings.number(setting));
    });
    connect(box, &QSpinBox::valueChanged, this,
            [this, setting](int number) { m_settings.set(setting, number); });
    return box;
}

QLabel *PreferencesPage::addNote(QBoxLayout &layout, const QString &text)
{
    auto *note = new QLabel(text);
    note->setWordWrap(true);
    layout.addWidget(note);
    return note;
}

} // namespace quillet
