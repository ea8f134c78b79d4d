#include "bench/Home.h"

#include <QDir>
#include <QFile>

#include <array>

namespace quillet::bench {

namespace {

constexpr std::array folders{"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"};

} // namespace

Home::Home()
{
    for (const char *folder : folders) {
        QDir(m_folder.path()).mkdir(QLatin1String(folder));
        // Sockets are only trusted in a folder of one's own.
        QFile::setPermissions(m_folder.filePath(QLatin1String(folder)),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}

QProcessEnvironment Home::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *folder : folders)
        environment.insert(QLatin1String(folder), m_folder.filePath(QLatin1String(folder)));
    return environment;
}

void Home::enter() const
{
    for (const char *folder : folders)
        qputenv(folder, m_folder.filePath(QLatin1String(folder)).toUtf8());
}

} // namespace quillet::bench
