#include "files/ExtendedAttributes.h"

#include "files/FileNames.h"

#include <QFile>

#include <algorithm>
#include <array>

#if defined(Q_OS_LINUX)
#include <cerrno>
#include <sys/xattr.h>
#elif defined(Q_OS_DARWIN)
#include <copyfile.h>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace quillet {

#if defined(Q_OS_LINUX)

namespace {

constexpr char accessListName[] = "system.posix_acl_access";
/// The system allows no longer list of names and no longer value.
constexpr qsizetype longest = 65536;
/// What they say was found out about the old bytes, or given to them.
constexpr std::array<QByteArrayView, 3> ofTheBytes{"security.capability", "security.evm",
                                                   "security.ima"};

/// Whether that errno says that the file system keeps no attributes.
bool hasNone(int error)
{
    return error == ENOTSUP || error == ENOSYS;
}

/// What a call puts into the buffer that it is given; none when it fails.
template<typename Call>
std::optional<QByteArray> taken(const Call &call)
{
    QByteArray buffer(longest, Qt::Uninitialized);
    const ssize_t size = call(buffer.data(), static_cast<std::size_t>(buffer.size()));
    return size < 0 ? std::nullopt : std::optional(buffer.first(size));
}

bool isCopied(const QByteArray &name)
{
    return name.startsWith("user.") ||
           (name.startsWith("security.") &&
            std::find(ofTheBytes.begin(), ofTheBytes.end(), name) == ofTheBytes.end());
}

} // namespace

bool copyExtendedAttributes(const QString &path, int handle)
{
    const QByteArray from = bytesOfPath(path);
    const auto names = taken(
        [&from](char *to, std::size_t size) { return ::listxattr(from.constData(), to, size); });
    if (!names)
        return hasNone(errno);
    bool areAll = true;
    for (const QByteArray &name : names->split('\0')) {
        if (!isCopied(name))
            continue;
        const char *const key = name.constData();
        const auto value = taken([&from, key](char *to, std::size_t size) {
            return ::getxattr(from.constData(), key, to, size);
        });
        const auto made = taken([handle, key](char *to, std::size_t size) {
            return ::fgetxattr(handle, key, to, size);
        });
        const bool isThere =
            value &&
            (made == value || ::fsetxattr(handle, key, value->constData(),
                                          static_cast<std::size_t>(value->size()), 0) == 0);
        areAll = areAll && isThere;
    }
    return areAll;
}

std::optional<QByteArray> accessListOf(const QString &path)
{
    const QByteArray from = bytesOfPath(path);
    auto list = taken([&from](char *to, std::size_t size) {
        return ::getxattr(from.constData(), accessListName, to, size);
    });
    if (list || (errno != ENODATA && !hasNone(errno)))
        return list;
    return QByteArray();
}

bool setAccessListOf(int handle, const QByteArray &list)
{
    if (list.isEmpty())
        return ::fremovexattr(handle, accessListName) == 0 || errno == ENODATA;
    return ::fsetxattr(handle, accessListName, list.constData(),
                       static_cast<std::size_t>(list.size()), 0) == 0;
}

#else

bool copyExtendedAttributes(const QString &path, int handle)
{
#if defined(Q_OS_DARWIN)
    // The access list of that system stands beside the mode and does not change what it means.
    const int from = ::open(bytesOfPath(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool areCopied =
        from >= 0 && ::fcopyfile(from, handle, nullptr, COPYFILE_XATTR | COPYFILE_ACL) == 0;
    if (from >= 0)
        ::close(from);
    return areCopied;
#else
    Q_UNUSED(path);
    Q_UNUSED(handle);
    return true;
#endif
}

std::optional<QByteArray> accessListOf(const QString &)
{
    return QByteArray();
}

bool setAccessListOf(int, const QByteArray &)
{
    return true;
}

#endif

} // namespace quillet
