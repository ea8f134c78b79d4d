#pragma once

#include <QString>
#include <QStringList>

namespace quillet {

/// A command line in which Qt's own options are told from the others. Qt finds its own anywhere,
/// with one or two hyphens, and takes them out itself as soon as there is an application object.
struct PlatformOptions
{
    QStringList others; ///< the arguments without Qt's options
    QStringList
        ofEveryWindow;  ///< Qt's options that hold for another process of the program as well
    QString incomplete; ///< an option at the end that lacks its value; empty: none
};

[[nodiscard]] PlatformOptions takePlatformOptions(const QStringList &arguments);
/// Lists Qt's options, a line each.
[[nodiscard]] QString platformOptionsText();

} // namespace quillet
