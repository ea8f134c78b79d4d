#pragma once

#include <QString>

class QByteArray;

namespace quillet {

class EditorOutlets;
class TLLDocument;
class ViewController;
struct ChannelList;

/// The commands that compare the document with another list: each gets that list, or says why there
/// is none, and has the comparison shown by ViewController::comparisonWanted(). Changes nothing.
/// Owned by the window's ViewController.
class CompareCommands
{
public:
    CompareCommands(ViewController &controller, const EditorOutlets &outlets)
        : m_controller(controller), m_outlets(outlets)
    {
    }

    /// Asks for a channel list and compares with that.
    void askForFile();
    void compareWithFile(const QString &path);
    /// With the file of the document as it was read.
    void compareWithRead();
    /// Empty when there is something to compare so.
    [[nodiscard]] QString reasonAgainstRead() const;
    /// With what the list of another window is now.
    void compareWithDocument(const TLLDocument &other);
    /// The name is that of the content, for people.
    void compareWithBytes(const QByteArray &bytes, const QString &name);

private:
    ViewController &m_controller;
    const EditorOutlets &m_outlets;
};

} // namespace quillet
