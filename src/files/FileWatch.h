#pragma once

#include "files/FileState.h"

#include <QObject>
#include <QTimer>

#include <optional>

class QThread;

namespace quillet {

class FileLooks;

/// Tells within two seconds when a file is no longer as it is known, whoever has changed, replaced
/// or removed it, and when it is so again; contents count, not times. A file that is written in
/// pieces is told of when that is over. Never waits for the disk, not even for one that never
/// answers again. Owned by the file's document, which says what it knows after every reading and
/// writing, and so never hears of its own.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent = nullptr);
    ~FileWatch() override;

    /// Watches the path of that state, from which everything else is a change; nothing is news.
    void watch(const FileState &known);

    /// What has become of the file; None while it is as known.
    [[nodiscard]] FileState::Change news() const { return m_news; }
    /// What is there instead; none without news.
    [[nodiscard]] const std::optional<FileState> &found() const { return m_found; }
    /// A file that was gone may come back on another device, changed or not.
    [[nodiscard]] const std::optional<FileState> &known() const { return m_known; }

signals:
    /// There is other news than before, or none any more.
    void newsChanged();

private:
    void begin();
    void look();
    void letGo();
    void compare(const FileState &state, quint64 number);
    void tell(FileState::Change news, const std::optional<FileState> &found);

    QTimer m_beginning;
    QThread *m_thread = nullptr;
    FileLooks *m_looks = nullptr; ///< lives in the thread, and looks at the path of the known state
    quint64 m_number = 0;         ///< of the known state; what was found for an earlier is no news
    std::optional<FileState> m_known;
    std::optional<FileState> m_found;
    bool m_wasAway = false; ///< nothing was there since then
    FileState::Change m_news = FileState::Change::None;
};

} // namespace quillet
