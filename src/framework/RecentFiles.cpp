#include "framework/RecentFiles.h"

#include "files/Places.h"
#include "support/StartDelay.h"

#include <QSettings>

#include <algorithm>

namespace quillet {

namespace {

constexpr char filesKey[] = "recentFiles"; // the paths alone, as earlier versions know them
/// Each with the path it belongs to, for an earlier version would change the paths and leave these.
constexpr char factsKey[] = "recentFileFacts";
constexpr char pathKey[] = "path";
constexpr char originKey[] = "origin";
constexpr char entriesKey[] = "entries";
constexpr char usedKey[] = "used";
constexpr qsizetype longestOrigin = 100; // it comes from a file, where it may be endless

std::vector<RecentFile> factsIn(QSettings &settings)
{
    std::vector<RecentFile> files;
    const int size = qMin(settings.beginReadArray(factsKey), RecentFiles::maximum);
    for (int i = 0; i < size; ++i) {
        settings.setArrayIndex(i);
        RecentFile file{settings.value(pathKey).toString()};
        file.facts.origin = settings.value(originKey).toString().left(longestOrigin);
        bool isNumber = false;
        const qint64 entries = settings.value(entriesKey).toLongLong(&isNumber);
        if (isNumber && entries >= 0)
            file.facts.entries = entries;
        file.usedAt = QDateTime::fromString(settings.value(usedKey).toString(), Qt::ISODate);
        files.push_back(file);
    }
    settings.endArray();
    return files;
}

void removePath(std::vector<RecentFile> &files, const QString &path)
{
    std::erase_if(files, [&path](const RecentFile &file) { return file.path == path; });
}

} // namespace

RecentFiles::RecentFiles(QObject *parent) : QObject(parent)
{
    m_writing.setSingleShot(true);
    m_writing.setInterval(startDelay); // writing waits for the disk
    connect(&m_writing, &QTimer::timeout, this, &RecentFiles::write);
}

RecentFiles::~RecentFiles()
{
    write();
}

QStringList RecentFiles::paths() const
{
    QStringList paths;
    for (const RecentFile &file : files())
        paths.append(file.path);
    return paths;
}

std::vector<RecentFile> RecentFiles::files() const
{
    QSettings settings;
    const std::vector<RecentFile> known = factsIn(settings);
    std::vector<RecentFile> files;
    const QStringList all = settings.value(filesKey).toStringList();
    for (const QString &path : all) {
        const auto found =
            std::find_if(known.begin(), known.end(),
                         [&path](const RecentFile &file) { return file.path == path; });
        files.push_back(found == known.end() ? RecentFile{path} : *found);
    }
    for (const RecentFile &file : m_added) {
        removePath(files, file.path);
        files.insert(files.begin(), file);
    }
    if (files.size() > maximum)
        files.resize(maximum);
    return files;
}

void RecentFiles::add(const QString &path, const RecentFacts &facts)
{
    m_added.push_back({tidyPath(path), facts, QDateTime::currentDateTimeUtc()});
    m_writing.start();
    emit changed();
}

void RecentFiles::remove(const QString &path)
{
    std::vector<RecentFile> list = files();
    removePath(list, path);
    store(list);
    emit changed();
}

void RecentFiles::clear()
{
    store({});
    emit changed();
}

void RecentFiles::write()
{
    if (!m_added.empty())
        store(files());
}

void RecentFiles::store(const std::vector<RecentFile> &files)
{
    QSettings settings;
    QStringList paths;
    for (const RecentFile &file : files)
        paths.append(file.path);
    settings.setValue(filesKey, paths);
    settings.remove(factsKey);
    settings.beginWriteArray(factsKey, static_cast<int>(files.size()));
    for (int i = 0; const RecentFile &file : files) {
        settings.setArrayIndex(i++);
        settings.setValue(pathKey, file.path);
        if (!file.facts.origin.isEmpty())
            settings.setValue(originKey, file.facts.origin.left(longestOrigin));
        if (file.facts.entries)
            settings.setValue(entriesKey, *file.facts.entries);
        if (file.usedAt.isValid())
            settings.setValue(usedKey, file.usedAt.toString(Qt::ISODate));
    }
    settings.endArray();
    m_added.clear();
    m_writing.stop();
}

} // namespace quillet
