#pragma once

#include "document/TLLWindowController.h"

#include <QTimer>

class QLabel;

namespace quillet {

class EditorView;
class TLLDocument;

/// The window of one channel list, with the editor as its content. Holds the document weakly.
class LGWindowController : public TLLWindowController
{
    Q_OBJECT

public:
    LGWindowController();
    ~LGWindowController() override;

    bool populateFromTLLDoc(TLLDocument &document, const Error &error) override;
    void refill() override;
    [[nodiscard]] bool validateUserInterfaceItem(const QString &action) const override;

    /// The document shown; null before there is one and after it has gone.
    [[nodiscard]] TLLDocument *tlldoc() const;
    [[nodiscard]] EditorView &editor() const { return *m_editor; }

private:
    void windowDidLoad();
    /// Says it in a line at the bottom, which goes by itself.
    void tell(const QString &text);

    EditorView *m_editor;
    QLabel *m_told;
    QTimer m_toldTimer;
};

} // namespace quillet
