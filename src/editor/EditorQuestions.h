#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QObject;
class QWidget;

namespace quillet {

class TLLDocument;

/// What the editor asks and tells a person, as sheets of its window. Answers reach `context` only
/// while it lives. Nothing is asked for a document without prompts.
class EditorQuestions
{
public:
    EditorQuestions(TLLDocument &document, QWidget *window, QObject *context);

    /// The number for so many stations that was typed, 1 to highestTarget; `refused` is called for
    /// any other that was confirmed.
    void askForNumber(qsizetype stations, std::function<void(qint64)> answered,
                      std::function<void()> refused) const;
    /// Whether an edit may be made although it gives that many stations a number that they cannot
    /// carry.
    void askToGoBeyond(std::size_t stations, std::function<void(bool)> answered) const;
    /// Whether the document's unsaved changes may be given up for another file.
    void askToReplace(std::function<void()> confirmed) const;
    using FileChosen = std::function<void(const QString &)>;
    /// The reference list chosen, to be applied or to be looked at first.
    void askForReferenceList(const std::function<void(const QString &)> &chosen,
                             const std::function<void(const QString &)> &previewed) const;
    /// The table of another program chosen.
    void askForTable(const FileChosen &chosen) const;
    /// The channel list that was chosen to be compared with.
    void askForListToCompare(const FileChosen &chosen) const;
    void showError(const QString &message, const QString &detail) const;

private:
    /// Hands on the first of the paths that a panel answers.
    [[nodiscard]] std::function<void(const QStringList &)> firstOf(const FileChosen &chosen) const;

    TLLDocument &m_document;
    QWidget *m_window;
    QObject *m_context;
};

} // namespace quillet
