#include "app/HelpLoader.h"

#include <QCoreApplication>
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

template<typename Places>
std::optional<QString> find(const Places &places, const QString &wanted)
{
    for (const char *place : places) {
        const QString folder = QCoreApplication::applicationDirPath() + QLatin1String(place);
        if (QFileInfo::exists(folder + wanted))
            return QFileInfo(folder).absoluteFilePath();
    }
    return {};
}

} // namespace

std::optional<QString> resourceFolder()
{
    return find(resourcePlaces, QStringLiteral("/User-Guide/index.html"));
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
