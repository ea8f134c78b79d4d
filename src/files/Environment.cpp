#include "files/Environment.h"

#include <QByteArray>
#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace quillet {

#ifdef Q_OS_UNIX

namespace {

constexpr const char *folders[]{"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                "XDG_RUNTIME_DIR", "XDG_STATE_HOME"};

} // namespace

void ignoreRelativeFolders()
{
    for (const char *name : folders) {
        if (!qgetenv(name).startsWith('/'))
            qunsetenv(name);
    }
    if (qgetenv("HOME").startsWith('/'))
        return;
    const passwd *person = getpwuid(getuid());
    if (person && person->pw_dir && *person->pw_dir == '/')
        qputenv("HOME", person->pw_dir);
    else
        qunsetenv("HOME");
}

#else

void ignoreRelativeFolders() {}

#endif

} // namespace quillet
