#include "app/UnsavedLists.h"

#include "app/LGWindowController.h"
#include "app/RecoveryDialog.h"
#include "document/TLLDocument.h"
#include "editor/EditorView.h"
#include "files/Error.h"
#include "files/Places.h"
#include "framework/DocumentController.h"
#include "framework/RecoveryKeeper.h"
#include "framework/WaitCursor.h"

#include <utility>

namespace quillet {

UnsavedLists::UnsavedLists(DocumentController &documents, RecoveryKeeper &keeper,
                           Factory makeDocument)
    : m_documents(documents), m_keeper(keeper), m_makeDocument(std::move(makeDocument))
{
}

UnsavedLists::~UnsavedLists()
{
    delete m_dialog;
}

bool UnsavedLists::areThere() const
{
    return m_dialog || m_keeper.store().hasLeftovers(); // those of the dialog are locked
}

bool UnsavedLists::areShown() const
{
    return m_dialog && m_dialog->isVisible();
}

bool UnsavedLists::show()
{
    if (!m_dialog) {
        auto leftovers = m_keeper.store().leftovers();
        if (leftovers.empty())
            return false;
        m_dialog = new RecoveryDialog(
            std::move(leftovers), m_documents.prompts(),
            [this](RecoveryStore::Leftover &leftover) { return bringBack(leftover); });
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_dialog, &QDialog::finished, this, [this] {
            if (m_documents.documents().empty())
                m_documents.newDocument();
        });
    }
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
    return true;
}

QString UnsavedLists::bringBack(RecoveryStore::Leftover &leftover)
{
    const Document *open = m_documents.documentAt(leftover.state->path);
    if (open && open->hasUnautosavedChanges())
        return qtTrId("kRecoveryOpenReason");
    const QString original = leftover.folder->pathOf(RecoveryFolder::Part::Original);
    const WaitCursor wait(sizeOf(original));
    std::unique_ptr<TLLDocument> document = m_makeDocument();
    Error error;
    if (!RecoveryKeeper::restore(*document, leftover, error))
        return leftover.problem = error.text();
    TLLDocument &opened = *document;
    const int source = opened.curSource();
    const StationListPtr shown = opened.stations();
    m_documents.openRestored(std::move(document));
    opened.setDirtyFlag(true); // showing a document makes it unchanged
    m_keeper.goOn(opened, std::move(leftover));
    for (const auto &each : opened.windowControllers()) {
        auto *window = qobject_cast<LGWindowController *>(each.get());
        if (window && opened.hasDataForSource(source))
            window->editor().controller().showList(shown);
    }
    emit opened.told(qtTrId("kToldBroughtBack").arg(opened.displayName()));
    return {};
}

} // namespace quillet
