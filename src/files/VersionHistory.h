#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <optional>
#include <vector>

namespace quillet {

/// A content that a file had before this program replaced it.
struct KeptVersion
{
    QByteArray digest;    ///< of the content, whose name in the store it is
    qint64 size = 0;      ///< in bytes
    QDateTime time;       ///< when the file was last written, in UTC; invalid when that is not told
    bool isFirst = false; ///< the one from before the first replacement, which is kept for good
};

/// Which versions are kept of one path, as one file of the store tells it. Reads leniently: what is
/// not understood in it is passed over, and stays when it is written again. Touches no file.
class VersionHistory
{
public:
    explicit VersionHistory(const QString &place);
    /// None when that is no history at all.
    [[nodiscard]] static std::optional<VersionHistory> fromJSON(const QByteArray &json);
    [[nodiscard]] QByteArray toJSON() const;

    /// The path without links.
    [[nodiscard]] QString place() const;
    /// Each content once, the oldest first.
    [[nodiscard]] std::vector<KeptVersion> versions() const;
    /// Whether every version in it is understood.
    [[nodiscard]] bool isWhole() const;
    /// Adds a version as the newest one, and as the first when there is none. The same content from
    /// before goes, but the first stays as it is. Returns whether anything changed.
    bool add(const KeptVersion &version);
    /// Takes out the oldest until there are no more than that, but never the first.
    void shorten(std::size_t most);
    /// Takes out the version of that content.
    void remove(const QByteArray &digest);

private:
    VersionHistory() = default;

    QJsonObject m_object;
};

} // namespace quillet
