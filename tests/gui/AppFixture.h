#pragma once

#include "app/AppDelegate.h"
#include "testing/PresetPrompts.h"
#include "testing/TestFiles.h"

#include <QMainWindow>
#include <QStringList>
#include <QTableView>
#include <QTemporaryDir>

class QAction;

namespace quillet::testing {

/// The running program with its texts, whose questions are answered beforehand unless other prompts
/// are given. Every file lies in a folder of its own.
struct App
{
    enum class Settings { Cleared, Kept };
    explicit App(Prompts *prompts = nullptr, Settings settings = Settings::Cleared);

    PresetPrompts preset;
    AppDelegate delegate;
    QTemporaryDir folder;

    /// Makes a file and gives its path.
    [[nodiscard]] QString write(const char *name, const QByteArray &bytes) const;
    /// The active window of that many documents; null when they are not that many.
    [[nodiscard]] QMainWindow *window(std::size_t documents = 1) const;
    /// The window of a new file with those bytes.
    [[nodiscard]] QMainWindow *open(const char *name, const QByteArray &bytes);
};

/// The part of a window with that object name, which must be there.
template<typename Part>
Part &part(const QWidget &window, const char *name)
{
    auto *found = window.findChild<Part *>(QString::fromLatin1(name));
    if (!found)
        qFatal("no \"%s\" in the window", name);
    return *found;
}

[[nodiscard]] QTableView &tableOf(const QWidget &window);
[[nodiscard]] QString cell(const QWidget &window, int row, int column);
[[nodiscard]] QAction &menuItem(const QWidget &window, const char *name);
/// Clicks the rows, all but the first with Ctrl held.
void selectRows(const QWidget &window, const QList<int> &rows);
/// A file with that many cable stations, numbered from 1.
[[nodiscard]] QByteArray listOf(int count);
/// What a text button is labelled with, by its id.
[[nodiscard]] QString label(const char *id);

} // namespace quillet::testing
