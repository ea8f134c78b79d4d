#pragma once

#include "support/Utf8Builder.h"

#include <QString>

#include <type_traits>

namespace quillet {

class KXFileLog;

/// Lines for an open log, written many at a time: opening and closing the file for each of
/// thousands would take longer than the work they tell of. The last are written when this goes.
/// Does nothing when no log of that name is open.
class LogLines
{
public:
    explicit LogLines(const QString &logName);
    ~LogLines();
    Q_DISABLE_COPY_MOVE(LogLines)

    [[nodiscard]] bool isWanted() const { return m_log != nullptr; }

    /// Adds a line, made of pieces of text (QStringView, QLatin1String), as LogToFile would write
    /// it now.
    template<typename... Texts>
    void add(const Texts &...pieces)
    {
        if (!isWanted())
            return;
        beginLine();
        (append(pieces), ...);
        append(QLatin1String("\n"));
    }

    /// Writes what was added so far, which no crash can take away afterwards.
    void flush();

    /// The same for a line with too many pieces for one call: this, any number of append, and the
    /// line's end as the last piece. To be called only when lines are wanted.
    void beginLine();
    template<typename Text> ///< or what appends it to a Utf8Builder
    void append(const Text &text)
    {
        if constexpr (std::is_invocable_v<Text, Utf8Builder &>)
            text(m_lines);
        else
            m_lines.append(text);
        if (m_lines.size() > manyBytes)
            write();
    }

private:
    static constexpr qsizetype manyBytes = 65536;

    void write();

    KXFileLog *m_log;
    Utf8Builder m_lines;
};

} // namespace quillet
