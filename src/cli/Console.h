#pragma once

#include "cli/ExitStatus.h"

#include <QByteArrayView>
#include <QHash>
#include <QString>

namespace quillet {

/// The tool's standard streams: data go out by write(), messages by tell(). Held by main alone and
/// handed down, so that nothing else prints.
class Console
{
public:
    /// The bytes of a file, or data in UTF-8, to the standard output.
    void write(QByteArrayView data);
    void print(const QString &text) { write(QByteArrayView(text.toUtf8())); }

    /// A message of one or more lines, about a file or, where that is empty, about the whole call.
    void tell(const QString &file, const QString &message);
    /// Has messages call that file by another name.
    void callFile(const QString &file, const QString &name) { m_names.insert(file, name); }

    /// Brings all data out. When they cannot be written, says so and answers that; a reader that
    /// has gone ends the program, as in any pipe.
    [[nodiscard]] ExitStatus finish();

private:
    void give(QByteArrayView data);

    QByteArray m_waiting;
    QHash<QString, QString> m_names;
    int m_problem = 0; ///< of the system; 0: none so far
};

/// Of a file as messages and tables name it.
[[nodiscard]] QString fileTitle(const QString &path);
/// Whether the operand stands for a standard stream.
[[nodiscard]] bool isStream(const QString &path);

} // namespace quillet
