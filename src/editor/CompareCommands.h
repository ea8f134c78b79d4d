#pragma once

#include "editor/ListEditor.h"

#include <QString>

#include <functional>
#include <vector>

class QByteArray;

namespace quillet {

class EditorOutlets;
class TLLDocument;
class ViewController;
struct ChannelList;

/// The commands that compare the document with another list: each gets that list, or says why there
/// is none, and has the comparison shown by ViewController::comparisonWanted(). What is taken over
/// then it has carried out. Owned by the window's ViewController.
class CompareCommands
{
public:
    CompareCommands(ViewController &controller, EditorOutlets &outlets, ListEditor &editor)
        : m_controller(controller), m_outlets(outlets), m_editor(editor)
    {
    }

    /// Asks for a channel list and compares with that.
    void askForFile();
    void compareWithFile(const QString &path);
    /// With the file of the document as it was read.
    void compareWithRead();
    /// Empty when there is something to compare so.
    [[nodiscard]] QString reasonAgainstRead() const;
    /// With what the list of another window is now; what becomes of it there is not followed.
    void compareWithDocument(const TLLDocument &other);
    /// The name is that of the content, for people.
    void compareWithBytes(const QByteArray &bytes, const QString &name);

    /// Asks for a table that was exported and edited elsewhere, and compares with that.
    void askForTable();
    /// One that cannot be used is told.
    void compareWithTable(const QString &path);

    using Plan = std::function<TakeOverParts()>;
    /// Carries out what is planned, as one step that the summary tells, and calls `done`. Behind a
    /// question it is planned anew.
    void takeOver(const Plan &plan, const EditSummary &summary, const std::function<void()> &done);

private:
    /// How equal numbers are taken over.

    ViewController &m_controller;
    EditorOutlets &m_outlets;
    ListEditor &m_editor;
};

} // namespace quillet
