#pragma once

#include "files/RecoveryStore.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace quillet {

class DocumentController;
class RecoveryDialog;
class RecoveryKeeper;
class TLLDocument;

/// Brings back what programs that ended too early have left: shows the sheet that lists it, and
/// opens in windows what is chosen there. While that is on the screen, the program needs no window
/// of a document. Owned by the AppDelegate.
class UnsavedLists : public QObject
{
    Q_OBJECT

public:
    using Factory = std::function<std::unique_ptr<TLLDocument>()>;

    /// The controller and the keeper must outlive the object.
    UnsavedLists(DocumentController &documents, RecoveryKeeper &keeper, Factory makeDocument);
    ~UnsavedLists() override;

    /// Whether there are any, listed already or not.
    [[nodiscard]] bool areThere() const;
    [[nodiscard]] bool areShown() const;
    /// Lists them, or raises the sheet that does. Returns whether there are any.
    bool show();

private:
    /// Opens what can be brought back. Returns why that failed; empty when it did not.
    [[nodiscard]] QString bringBack(RecoveryStore::Leftover &leftover);

    DocumentController &m_documents;
    RecoveryKeeper &m_keeper;
    Factory m_makeDocument;
    QPointer<RecoveryDialog> m_dialog;
};

} // namespace quillet
