#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quillet {

/// What the program was asked to do on its command line. Qt's own options are left to Qt.
struct CommandLine
{
    QStringList files;
    QString snapshot;              ///< the picture to make instead of opening a window; empty: none
    bool isDark = false;           ///< dark colours, whatever the desktop's are
    QString language;              ///< of the texts; empty: the system's
    bool isNewInstance = false;    ///< to be a program of its own, even beside another
    bool isHelpWindow = false;     ///< to be the process of another one's help window
    QStringList helpWindow;        ///< the arguments that such a process is started with
    std::optional<QString> answer; ///< a text to print (help, version) instead of anything else
    QString error;                 ///< what is wrong with the arguments; empty: nothing

    /// Needs no application object and no display.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);
    /// Has that language used where none was given, if there are texts in it; by the help window
    /// as well.
    void preferLanguage(const QString &preferred);
};

} // namespace quillet
