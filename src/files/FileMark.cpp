#include "files/FileMark.h"

#include "files/FileNames.h"
#include "files/Places.h"

#ifdef Q_OS_WIN
#include <filesystem>
#include <system_error>
#else
#include <sys/stat.h>
#endif

namespace quillet {

#ifdef Q_OS_WIN

FileMark FileMark::ofFileAt(const QString &path)
{
    namespace fs = std::filesystem;
    FileMark mark;
    std::error_code code;
    const fs::path native = nativePath(path);
    const auto written = fs::last_write_time(native, code).time_since_epoch().count();
    mark.m_facts = {static_cast<qint64>(fs::status(native, code).type()), sizeOf(path),
                    static_cast<qint64>(written)};
    return mark;
}

#else

FileMark FileMark::ofFileAt(const QString &path)
{
#ifdef Q_OS_DARWIN
    const auto written = [](const struct stat &of) { return of.st_mtimespec; };
    const auto changed = [](const struct stat &of) { return of.st_ctimespec; };
#else
    const auto written = [](const struct stat &of) { return of.st_mtim; };
    const auto changed = [](const struct stat &of) { return of.st_ctim; };
#endif
    const auto nanoseconds = [](const struct timespec &time) {
        return qint64{time.tv_sec} * 1'000'000'000 + qint64{time.tv_nsec};
    };
    FileMark mark;
    struct stat status = {};
    if (::stat(bytesOfPath(path).constData(), &status) != 0)
        return mark;
    mark.m_facts = {static_cast<qint64>(status.st_dev),  static_cast<qint64>(status.st_ino),
                    static_cast<qint64>(status.st_mode), static_cast<qint64>(status.st_uid),
                    static_cast<qint64>(status.st_size), nanoseconds(written(status)),
                    nanoseconds(changed(status))};
    return mark;
}

#endif

FileMark FileMark::at(const QString &path)
{
    FileMark mark = ofFileAt(path);
    // A folder that stays while its disk goes shows by its device alone.
    mark.m_facts.back() = static_cast<qint64>(deviceOf(path).value_or(0));
    return mark;
}

} // namespace quillet
