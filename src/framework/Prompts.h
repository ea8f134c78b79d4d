#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QPrinter;
class QWidget;

namespace quillet {

/// What an alert sheet says and offers. The first button is the default one.
struct Alert
{
    QString message;
    QString informativeText;
    QStringList buttons;
    int cancelButton = -1;      ///< index of the button that Escape presses; -1: the last one
    int destructiveButton = -1; ///< index of a button that throws changes away; -1: none
    bool asksForText = false;   ///< shows a single-line text field, empty and focused
    QString checkBox = {};      ///< of a box to tick beside the buttons; empty: none
};

/// The button pressed (an index into Alert::buttons), the field's text, if one was asked for, and
/// whether the box was ticked.
struct AlertAnswer
{
    int button = -1;
    QString text = {};
    bool isChecked = false;
};

/// What a panel that asks for files to open offers.
struct OpenPanel
{
    QString title;
    QString directory;       ///< where it starts; empty: where the last one ended
    QStringList nameFilters; ///< "Name (*.a *.b)", the preselected one first
    bool allowsSeveral = false;
    /// A second way to go on with the files chosen, and what is called with them then instead;
    /// without a title there is none.
    QString otherButton = {};
    std::function<void(const QStringList &)> otherChosen = {};
};

/// What a panel that asks where to save offers.
struct SavePanel
{
    QString title;
    QString suggestedPath; ///< folder and name it starts with
    QStringList nameFilters;
    QString explanation = {}; ///< of what is written, where the platform's panel has room for it
};

/// What a panel that asks how to print offers besides all pages, some and the current one.
struct PrintPanel
{
    QString documentName;
    bool hasSelection = false; ///< and so its rows alone
};

/// Everything the program asks a person, behind one interface, so that a test presets the answers.
/// All questions are sheets: they belong to the given window (none: to the program), the call
/// returns at once and the answer arrives later, at most once. It never arrives when the window
/// goes away first.
class Prompts
{
public:
    virtual ~Prompts() = default;

    virtual void showAlert(QWidget *window, const Alert &alert,
                           std::function<void(const AlertAnswer &)> done) = 0;
    /// Answers the chosen paths; none when cancelled.
    virtual void showOpenPanel(QWidget *window, const OpenPanel &panel,
                               std::function<void(const QStringList &)> done) = 0;
    /// Answers the chosen path, an existing file only after it was confirmed; empty when cancelled.
    virtual void showSavePanel(QWidget *window, const SavePanel &panel,
                               std::function<void(const QString &)> done) = 0;
    /// Lets the person choose where and how to print; `print` is called only on confirmation.
    virtual void showPrintPanel(QWidget *window, const PrintPanel &panel,
                                std::function<void(QPrinter &)> print) = 0;
    /// Says in a sheet what the person is waiting for. `cancelled` is called when they do not want
    /// to; the function returned, which may be called at any time, takes the sheet away.
    virtual std::function<void()> showProgress(QWidget *window, const QString &message,
                                               std::function<void()> cancelled) = 0;
};

} // namespace quillet
