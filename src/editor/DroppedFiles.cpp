#include "editor/DroppedFiles.h"

#include "document/TLLDocument.h"
#include "editor/EditorQuestions.h"

#include <QPointer>

#include <algorithm>

namespace quillet {

void DroppedFiles::load(TLLDocument &document, const EditorQuestions &questions,
                        const QString &path)
{
    if (document.putsOff([this, &document, &questions, path] { load(document, questions, path); }))
        return;
    if (!document.hasUnautosavedChanges())
        return readDroppedFile(document, path);
    questions.askToReplace([this, path, guard = QPointer(&document)] {
        if (guard)
            readDroppedFile(*guard, path);
    });
}

/// A file that another window has is shown there. The document changes only when the file can be
/// read: half-read content could be saved over the file that could not.
void DroppedFiles::readDroppedFile(TLLDocument &document, const QString &path)
{
    if (Document *other = document.otherDocumentAt(path)) {
        other->raiseWindows();
        return emit other->fileWasOpened();
    }
    Error error;
    document.readFromUrl(QUrl::fromLocalFile(path), TLLDocument::typeName(), error);
    const bool holdsStations = std::any_of(
        stationSources.begin(), stationSources.end(), [&document](StationSource source) {
            return document.hasDataForSource(static_cast<int>(source));
        });
    if (!error.isEmpty() && holdsStations)
        emit refused(error);
    else
        emit loaded(error);
    if (error.isEmpty())
        emit document.fileWasOpened();
}

} // namespace quillet
