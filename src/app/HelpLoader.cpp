#include "app/HelpLoader.h"

#include "texts/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPluginLoader>

#include <array>

namespace quillet {

namespace {

Q_LOGGING_CATEGORY(log, "quillet.help")

// Each relative to the executable: as built, and as installed.
constexpr std::array resourcePlaces{"/resources", "/../share/quillet", "/../Resources"};
constexpr std::array modulePlaces{"/modules", "/../lib/quillet", QUILLET_MODULE_PLACE,
                                  "/../PlugIns"};

/// Where that file is: in one of the folders of the first place that has it.
template<typename Places>
std::optional<QString> find(const Places &places, const QString &wanted,
                            const QStringList &folders = {QString()})
{
    for (const char *place : places)
        for (const QString &name : folders) {
            const QString folder =
                QCoreApplication::applicationDirPath() + QLatin1String(place) + name;
            if (QFileInfo::exists(folder + wanted))
                return QDir(folder).absolutePath();
        }
    return {};
}

} // namespace

std::optional<QString> resourceFolder()
{
    return find(resourcePlaces, QStringLiteral("/User-Guide/index.html"),
                {u'/' + shownLanguage(), QString()});
}

std::optional<QString> helpModule()
{
    const QString name = QStringLiteral("/quillet_help") + QLatin1String(QUILLET_MODULE_SUFFIX);
    const std::optional<QString> folder = find(modulePlaces, name);
    return folder ? std::optional(*folder + name) : std::nullopt;
}

std::unique_ptr<HelpBrowser> loadHelpBrowser(SystemServices &services)
{
    const std::optional<QString> path = helpModule();
    if (!path)
        return nullptr;
    QPluginLoader loader(*path); // leaves the module loaded
    auto *module = qobject_cast<HelpModule *>(loader.instance());
    if (!module) {
        qCWarning(log).noquote() << loader.errorString();
        return nullptr;
    }
    return module->makeBrowser(services);
}

} // namespace quillet
