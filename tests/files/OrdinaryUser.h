#pragma once

#include <QFile>
#include <QString>

#include <unistd.h>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace quillet::testing {

/// For its lifetime the process has an ordinary user's rights, whoever started it: the superuser
/// may read and write everything.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
#ifdef Q_OS_LINUX
        m_isChanged = ::geteuid() == 0 && ::setresuid(id, id, 0) == 0;
#endif
    }
    ~OrdinaryUser()
    {
#ifdef Q_OS_LINUX
        if (!m_isChanged)
            return;
        [[maybe_unused]] const int result = ::setresuid(0, 0, 0);
        ::prctl(PR_SET_DUMPABLE, 1); // which the change has taken away and leak checks need
#endif
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

    /// False when the superuser could not become anybody else.
    [[nodiscard]] static bool isOne()
    {
        return ::geteuid() != 0;
    }

    /// Makes the file or folder that user's, in the group it is in; before the change.
    static bool own(const QString &path)
    {
        return ::geteuid() != 0 ||
               ::chown(QFile::encodeName(path).constData(), id, static_cast<gid_t>(-1)) == 0;
    }

private:
    static constexpr uid_t id = 65534;

    bool m_isChanged = false;
};

} // namespace quillet::testing
