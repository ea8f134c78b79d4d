#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMenu;

namespace quillet {

class DocumentController;
class LGWindowController;

/// The lists that the one on show can be compared with: another file, the file as it was read, its
/// earlier versions, and the lists of other windows. Owned by the menu bar of its window.
class CompareMenu : public QObject
{
    Q_OBJECT

public:
    /// Adds itself to `menu`. The action lists the earlier versions, and is enabled elsewhere.
    CompareMenu(LGWindowController &window, DocumentController &documents, QMenu &menu,
                QAction &versions, QObject *parent);

    void validate();

private:
    void listWindows();

    LGWindowController &m_window;
    DocumentController &m_documents;
    QMenu *m_menu;
    QAction *m_file;
    QAction *m_read;
    QList<QAction *> m_windows; ///< for the lists of other windows, as the menu was last opened
};

} // namespace quillet
