#pragma once

#include "support/KXObject.h"

#include <QString>

#include <memory>
#include <optional>

namespace quillet {

/// A plain-text diagnostic log in a file of the user's data folder. Every run starts a new file and
/// keeps the previous run's beside it ("-last"). Each line is written and closed at once, so the
/// file can be read or deleted while the program runs. Logging never fails loudly: what goes wrong
/// is only said on the system console.
class KXFileLog : public KXObject
{
public:
    /// Makes the log and rotates the files; the new file comes into being with the first write.
    /// Null when the name is empty or the directory cannot be made.
    [[nodiscard]] static std::unique_ptr<KXFileLog>
    initWithName(const QString &name, const QString &applicationName = {});

    /// The open log of that name; null when there is none.
    [[nodiscard]] static KXFileLog *sharedLogWithName(const QString &name);
    /// The folder of the logs of an application; empty stands for this one.
    [[nodiscard]] static QString pathToLogDirectory(const QString &applicationName = {});
    [[nodiscard]] static QString getBundleName();

    [[nodiscard]] bool isPrivate() const { return m_isPrivate; }
    void setPrivate(bool isPrivate) { m_isPrivate = isPrivate; }
    /// The pattern of the time stamp; an empty one means no time stamp.
    void setDateTimeFormat(const QString &pattern);
    /// The current local time in that format.
    [[nodiscard]] QString formattedTime() const;
    /// Appends the text to the file. False when the log is torn down or the file cannot be opened;
    /// a failed write is not noticed.
    bool writeString(const QString &text);
    bool writeUtf8(QByteArrayView utf8);
    /// The path of the current file; empty after tearDown.
    [[nodiscard]] const QString &pathToLogFile() const { return m_filename; }
    /// Prints the whole log on the system console.
    void dumpAll() const;
    /// Deletes the previous run's file and puts the current one in its place.
    static void rotateFile(const QString &current, const QString &previous);
    /// Makes the folder and its parents. The path must be absolute. Returns 0, or -1 on failure.
    static int createDirectoryIfNecessary(const QString &path);

    void tearDown() override;

private:
    KXFileLog() = default;

    QString m_filename;
    QString m_dateTimeFormat;
    mutable qint64 m_lastTime = -1;        ///< many lines are written in one millisecond, or second
    mutable QString m_lastSecondFormatted; ///< without its milliseconds
    mutable QString m_lastTimeFormatted;
    bool m_isPrivate = false;
};

/// Opens the log of that name unless it is open already. False for an empty name and when the log
/// cannot be made. An empty application name stands for this application.
bool OpenFileLog(const QString &name, const QString &applicationName = {});

/// Writes a line, made from a printf format, with a time stamp to the log of that name. Does
/// nothing when that log is not open. Text arguments are UTF-16: "%ls" with qUtf16Printable.
void LogToFile(const QString &name, const char *format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);

} // namespace quillet
