#pragma once

#include <QString>

#include <memory>

#ifdef Q_OS_WIN
class QLockFile;
#endif

namespace quillet {

/// The sign that a living program uses a folder: a lock of the system on an open file, which goes
/// with the program however that ends. The file names the program for people; that alone would
/// prove nothing, since the numbers of processes come again. Whoever owns this object holds it.
class FileLock
{
public:
    struct Obstacle
    {
        bool isHeld = false; ///< by another object or program, or removed by one just now
        QString reason;      ///< the system's
    };
    /// Makes the file if need be; one that may only be read is locked as well. Null, with the
    /// obstacle, when it is held, and when nobody can tell.
    [[nodiscard]] static std::unique_ptr<FileLock> take(const QString &path, Obstacle &obstacle);
    /// Whether another object or program holds it, as far as can be told. Writes nothing, and
    /// keeps nobody from taking it.
    [[nodiscard]] static bool isHeld(const QString &path);
    ~FileLock();
    Q_DISABLE_COPY_MOVE(FileLock)

private:
#ifdef Q_OS_WIN
    explicit FileLock(std::unique_ptr<QLockFile> file);
    std::unique_ptr<QLockFile> m_file;
#else
    explicit FileLock(int handle) : m_handle(handle) {}
    int m_handle;
#endif
};

} // namespace quillet
