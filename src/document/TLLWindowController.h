#pragma once

#include "framework/WindowController.h"

namespace quillet {

class TLLDocument;
struct Error;

/// What a document needs of the window that shows it.
class TLLWindowController : public WindowController
{
    Q_OBJECT

public:
    using WindowController::WindowController;

    /// Shows the document's content. An error that is not empty is shown to the person. Returns
    /// whether there was none.
    virtual bool populateFromTLLDoc(TLLDocument &document, const Error &error) = 0;
};

} // namespace quillet
