#pragma once

#include <QObject>

namespace quillet {

class EditorQuestions;
class TLLDocument;
struct Error;

/// Loads files that are dropped on an editor into its document. Shows nothing but the question
/// whether changes may be lost. Owned by the window's ViewController.
class DroppedFiles : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks first when changes in lists that are not on show would be lost.
    void load(TLLDocument &document, const EditorQuestions &questions, const QString &path);

signals:
    /// The document holds the file now or, with an error that is not empty, nothing as before.
    void loaded(const quillet::Error &error);
    /// The file could not be read, and the document is as it was, with its stations.
    void refused(const quillet::Error &error);

private:
    void readDroppedFile(TLLDocument &document, const QString &path);
};

} // namespace quillet
