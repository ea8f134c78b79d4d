#pragma once

#include "files/VersionStore.h"

#include <QLatin1String>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <array>

namespace quillet {

/// What a person has chosen of the program.
enum class Setting {
    Language, ///< of the texts; empty: the system's
    TextSize, ///< of the table, in percent of what it usually is
    XMLColumns,
    JSONColumns,
    KeepsChanges,     ///< that are not saved, for after a crash
    KeepsVersions,    ///< of files that are replaced
    VersionCount,     ///< of a file, besides the first
    VersionSpace,     ///< in MiB
    RepairsJSONLists, ///< without asking, where that loses nothing
};

enum class SettingKind { Flag, Number, Text, Texts };

struct SettingFacts
{
    Setting setting;
    QLatin1String key; ///< in the settings file
    SettingKind kind;
    int usual = 0; ///< of a flag or a number; texts are usually empty
    int least = 0; ///< of a number
    int most = 0;
    int step = 1; ///< by which a number is usually made larger or smaller
};

constexpr std::array settingFacts{
    SettingFacts{Setting::Language, QLatin1String("language"), SettingKind::Text},
    SettingFacts{Setting::TextSize, QLatin1String("table/textSize"), SettingKind::Number, 100, 50,
                 300, 10},
    SettingFacts{Setting::XMLColumns, QLatin1String("Columns XML"), SettingKind::Texts},
    SettingFacts{Setting::JSONColumns, QLatin1String("Columns JSON"), SettingKind::Texts},
    SettingFacts{Setting::KeepsChanges, QLatin1String("recovery/isOn"), SettingKind::Flag, 1},
    SettingFacts{Setting::KeepsVersions, QLatin1String("versions/areKept"), SettingKind::Flag, 1},
    SettingFacts{Setting::VersionCount, QLatin1String("versions/count"), SettingKind::Number, 10, 1,
                 100},
    SettingFacts{Setting::VersionSpace, QLatin1String("versions/space"), SettingKind::Number, 200,
                 10, 10000, 50},
    SettingFacts{Setting::RepairsJSONLists, QLatin1String("saving/repairsJSONLists"),
                 SettingKind::Flag},
};

/// The one place that reads and writes what a person has chosen, window or tool. Whatever stands in
/// the settings file, each setting has a value it may have: a number beyond its range the nearest
/// one, and anything else that is not understood the usual. Where the window is or how a list was
/// exported last is no choice, and left to whoever remembers it. Owned by the AppDelegate; the tool
/// has one to read.
class Settings : public QObject
{
    Q_OBJECT

public:
    explicit Settings(QObject *parent = nullptr);

    [[nodiscard]] static const SettingFacts &factsOf(Setting setting);
    [[nodiscard]] bool isOn(Setting flag) const;
    [[nodiscard]] int number(Setting setting) const;
    [[nodiscard]] QString text(Setting setting) const;
    [[nodiscard]] QStringList texts(Setting setting) const;
    [[nodiscard]] VersionLimits versionLimits() const;

    /// A value that the setting may not have is taken as one that was read.
    void set(Setting setting, const QVariant &value);
    [[nodiscard]] bool isUsual(Setting setting) const;
    void useUsual(const QList<Setting> &settings);
    /// Takes over what other programs have set since.
    void look();

signals:
    void changed(quillet::Setting setting);

private:
    void take(Setting setting, const QVariant &value);

    std::array<QVariant, settingFacts.size()> m_values; ///< ones that the settings may have
};

} // namespace quillet
