#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace quillet {

/// What is kept of a changed document beside the bytes that it was read from: where it belongs, and
/// its edits, which only the document understands. Paths are those of FileNames.
struct RecoveryState
{
    QString path;      ///< of the document's file; empty for an untitled one
    QString suggested; ///< where saving an untitled one suggests to
    QString untouched; ///< of the file that saving must not write to
    QString fileType;
    QDateTime changedAt; ///< when the last change was made
    qint64 changes = 0;  ///< how many were not saved

    /// What the file at the path was known to hold when it was last read or written.
    enum class Known : quint8 {
        Nothing,  ///< no file yet
        Original, ///< the bytes that the document was read from
        Own,      ///< others, which are kept as well
    };
    Known known = Known::Nothing;
    QByteArray content;

    /// With the means to notice damage of any byte.
    [[nodiscard]] QByteArray encoded() const;
    enum class Reading { Done, Damaged, Newer };
    /// Reads what encoded() gave. Unless it is Done, the state stays as it was; Newer was made by a
    /// later version of the program.
    [[nodiscard]] Reading decode(const QByteArray &bytes);
    /// Of the file, or of the suggested one.
    [[nodiscard]] const QString &place() const { return path.isEmpty() ? suggested : path; }
};

} // namespace quillet
