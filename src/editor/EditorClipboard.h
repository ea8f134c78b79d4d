#pragma once

#include <QObject>
#include <QString>

class QTableView;

namespace quillet {

class EditorOutlets;
class ViewController;

/// Copying from the editor's window and pasting into it: what goes onto the clipboard, where that
/// on it goes, and the last look at it. A field that has the focus goes first, with its text. Owned
/// by the window's view.
class EditorClipboard : public QObject
{
    Q_OBJECT

public:
    EditorClipboard(const QTableView &list, const EditorOutlets &outlets,
                    ViewController &controller);

    /// Puts the selected stations on the clipboard; of a field, its selected text.
    void copy();
    /// Why it would do nothing; empty when it would do something.
    [[nodiscard]] QString reasonAgainstCopying() const;
    /// Moves the stations that are on the clipboard here; into a field goes its text.
    void paste();
    /// Why it would do nothing, as far as was seen at the last look; empty when it would do
    /// something.
    [[nodiscard]] QString reasonAgainstPasting() const;
    /// Looks what the clipboard has, which may mean to wait for the program that has put it there.
    void look();

signals:
    /// Pasting may be possible, where it was not.
    void stateChanged();

private:
    void forgetLook();

    const QTableView &m_list;
    const EditorOutlets &m_outlets;
    ViewController &m_controller;
    bool m_mayPaste = true; ///< until a look at the clipboard says otherwise
};

} // namespace quillet
