#pragma once

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>
#include <vector>

namespace quillet {

/// What a list of recent files tells of a file's content, as it was when the file was last open.
struct RecentFacts
{
    QString origin = {};                ///< what the file comes from; empty: not known
    std::optional<qint64> entries = {}; ///< how many it holds
};

/// A file that was open once, and all that is known of it without looking at the disk.
struct RecentFile
{
    QString path; ///< absolute
    RecentFacts facts = {};
    QDateTime usedAt = {}; ///< when it was last opened or saved; invalid: not known
};

/// The files opened last, newest first, kept in the user's settings. Says nothing about whether
/// they still exist: reading them asks no disk, which may be one that does not answer.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximum = 10;

    explicit RecentFiles(QObject *parent = nullptr);
    ~RecentFiles() override;

    /// Absolute paths, each once, at most `maximum`.
    [[nodiscard]] QStringList paths() const;
    /// The same with what is known of them.
    [[nodiscard]] std::vector<RecentFile> files() const;
    /// Puts the file first, as one that is used now. The settings are written soon.
    void add(const QString &path, const RecentFacts &facts = {});
    void remove(const QString &path);
    void clear();

signals:
    void changed();

private:
    void write();
    void store(const std::vector<RecentFile> &files);

    std::vector<RecentFile> m_added; ///< not yet in the settings; the newest last
    QTimer m_writing;
};

} // namespace quillet
