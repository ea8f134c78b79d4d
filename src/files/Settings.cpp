#include "files/Settings.h"

#include <QSettings>

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

constexpr qint64 mebibyte = qint64{1} << 20;

std::size_t placeOf(Setting setting)
{
    const auto *const found =
        std::find_if(settingFacts.begin(), settingFacts.end(),
                     [setting](const SettingFacts &facts) { return facts.setting == setting; });
    return static_cast<std::size_t>(found - settingFacts.begin());
}

/// People and other programs write flags in many ways.
bool flagOf(const QVariant &value, bool usual)
{
    const QString word = value.toString().trimmed().toLower();
    if (word == QLatin1String("true") || word == QLatin1String("yes") ||
        word == QLatin1String("on"))
        return true;
    if (word == QLatin1String("false") || word == QLatin1String("no") ||
        word == QLatin1String("off"))
        return false;
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    return isNumber ? number != 0 : usual;
}

int numberOf(const QVariant &value, const SettingFacts &facts)
{
    bool isNumber = false;
    const double number = value.toString().trimmed().toDouble(&isNumber);
    if (!isNumber || std::isnan(number))
        return facts.usual;
    return qRound(std::clamp<double>(number, facts.least, facts.most));
}

/// Of anything a value that the setting may have.
QVariant understood(const QVariant &value, const SettingFacts &facts)
{
    switch (facts.kind) {
    case SettingKind::Flag:
        return flagOf(value, facts.usual != 0);
    case SettingKind::Number:
        return numberOf(value, facts);
    case SettingKind::Text:
        return value.toString();
    case SettingKind::Texts:
        return value.toStringList();
    }
    return {};
}

} // namespace

Settings::Settings(QObject *parent) : QObject(parent)
{
    for (const SettingFacts &facts : settingFacts)
        take(facts.setting, {});
    look();
}

const SettingFacts &Settings::factsOf(Setting setting)
{
    return settingFacts.at(placeOf(setting));
}

bool Settings::isOn(Setting flag) const
{
    return m_values.at(placeOf(flag)).toBool();
}

int Settings::number(Setting setting) const
{
    return m_values.at(placeOf(setting)).toInt();
}

QString Settings::text(Setting setting) const
{
    return m_values.at(placeOf(setting)).toString();
}

QStringList Settings::texts(Setting setting) const
{
    return m_values.at(placeOf(setting)).toStringList();
}

VersionLimits Settings::versionLimits() const
{
    return {.areKept = isOn(Setting::KeepsVersions),
            .later = static_cast<std::size_t>(number(Setting::VersionCount)),
            .bytes = number(Setting::VersionSpace) * mebibyte};
}

void Settings::set(Setting setting, const QVariant &value)
{
    const SettingFacts &facts = factsOf(setting);
    QSettings().setValue(facts.key, understood(value, facts));
    take(setting, value);
}

bool Settings::isUsual(Setting setting) const
{
    return m_values.at(placeOf(setting)) == understood({}, factsOf(setting));
}

void Settings::useUsual(const QList<Setting> &settings)
{
    {
        QSettings file;
        for (const Setting setting : settings)
            file.remove(factsOf(setting).key);
    }
    for (const Setting setting : settings)
        take(setting, {});
}

void Settings::look()
{
    const QSettings file;
    if (file.status() == QSettings::AccessError)
        return; // what is known still holds
    for (const SettingFacts &facts : settingFacts)
        take(facts.setting, file.value(facts.key));
}

void Settings::take(Setting setting, const QVariant &value)
{
    QVariant &known = m_values.at(placeOf(setting));
    QVariant now = understood(value, factsOf(setting));
    if (known == now)
        return;
    known = std::move(now);
    emit changed(setting);
}

} // namespace quillet
