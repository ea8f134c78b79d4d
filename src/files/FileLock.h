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
    /// Makes the file if need be. Null when another object or program holds it, when it vanished
    /// meanwhile, or when it cannot be made; then the reason is the system's.
    [[nodiscard]] static std::unique_ptr<FileLock> take(const QString &path, QString &reason);
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
