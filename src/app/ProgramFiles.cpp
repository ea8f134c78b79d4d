#include "app/ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPluginLoader>

namespace quillet {

namespace {

Q_LOGGING_CATEGORY(log, "quillet.modules")

} // namespace

std::optional<QString> programFolder(std::initializer_list<const char *> places,
                                     const QString &file, const QStringList &folders)
{
    for (const char *place : places)
        for (const QString &name : folders) {
            const QString folder =
                QCoreApplication::applicationDirPath() + QLatin1String(place) + name;
            if (QFileInfo::exists(folder + u'/' + file))
                return QDir(folder).absolutePath();
        }
    return {};
}

std::optional<QString> programModule(const QString &name)
{
    const QString file = name + QLatin1String(QUILLET_MODULE_SUFFIX);
    // As built, and as installed.
    const std::optional<QString> folder =
        programFolder({"/modules", "/../lib/quillet", QUILLET_MODULE_PLACE, "/../PlugIns"}, file);
    return folder ? std::optional(*folder + u'/' + file) : std::nullopt;
}

QObject *loadProgramModule(const QString &name)
{
    const std::optional<QString> path = programModule(name);
    if (!path)
        return nullptr;
    QPluginLoader loader(*path); // leaves the module loaded
    QObject *module = loader.instance();
    if (!module)
        qCWarning(log).noquote() << loader.errorString();
    return module;
}

} // namespace quillet
