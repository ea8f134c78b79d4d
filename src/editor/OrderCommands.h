#pragma once

#include "document/order/ReferenceList.h"

#include <QString>

namespace quillet {

class EditorOutlets;
class ListEditor;
class ViewController;

/// The commands that impose the order of another list on the current one, or have it shown first by
/// ViewController::comparisonWanted(). Owned by the window's ViewController.
class OrderCommands
{
public:
    OrderCommands(ViewController &controller, EditorOutlets &outlets, ListEditor &editor)
        : m_controller(controller), m_outlets(outlets), m_editor(editor)
    {
    }

    /// Asks for a reference list, to be applied or looked at.
    void askForFile();
    /// Imposes the order of another channel list (tll) or of a text file (txt); a file of any other
    /// type, or that cannot be used, changes nothing.
    void applyFile(const QString &path);
    /// Has shown what that would do. Here a file of another type is told as well.
    void previewFile(const QString &path);
    /// Imposes the order of a reference list that was read from the file of that name.
    void apply(const ReferenceList &entries, const QString &fileName);

private:
    /// Why there are no entries is told unless it is of the type of the file.
    [[nodiscard]] ReferenceList read(const QString &path, bool tellsType);

    ViewController &m_controller;
    EditorOutlets &m_outlets;
    ListEditor &m_editor;
};

} // namespace quillet
