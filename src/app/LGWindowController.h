#pragma once

#include "document/TLLWindowController.h"

namespace quillet {

class EditorView;
class HistoryPanel;
class Settings;
class TLLDocument;
class ToldRow;

/// The window of one channel list, with the editor as its content. Holds the document weakly.
class LGWindowController : public TLLWindowController
{
    Q_OBJECT

public:
    /// The settings, which the window follows, must outlive it.
    explicit LGWindowController(Settings &settings);
    ~LGWindowController() override;

    bool populateFromTLLDoc(TLLDocument &document, const Error &error) override;
    void refill() override;
    [[nodiscard]] std::function<void()> keepPlace() const override;
    [[nodiscard]] bool validateUserInterfaceItem(const QString &action) const override;

    /// The document shown; null before there is one and after it has gone.
    [[nodiscard]] TLLDocument *tlldoc() const;
    [[nodiscard]] Settings &settings() const { return m_settings; }
    [[nodiscard]] EditorView &editor() const { return *m_editor; }
    [[nodiscard]] HistoryPanel &historyPanel() const { return *m_history; }

protected:
    /// Files may be dropped on the parts of the window around the editor, too.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void windowDidLoad();
    Settings &m_settings;
    EditorView *m_editor;
    ToldRow *m_told;
    HistoryPanel *m_history;
};

} // namespace quillet
