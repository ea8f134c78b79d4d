#include "bench/OpenWindow.h"

#include "app/LGWindowController.h"
#include "editor/EditorView.h"
#include "framework/Document.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QUrl>

namespace quillet::bench {

OpenWindow::OpenWindow(const QString &file)
{
    Document *document = m_delegate.documents().openDocument(QUrl::fromLocalFile(file));
    if (!document)
        return;
    const auto *window =
        dynamic_cast<LGWindowController *>(document->windowControllers().front().get());
    if (window)
        m_editor = &window->editor();
    settle();
}

qsizetype OpenWindow::rows() const
{
    return static_cast<qsizetype>(m_editor->controller().currentList().size());
}

void OpenWindow::trigger(const char *command) const
{
    if (auto *action = m_editor->window()->findChild<QAction *>(QLatin1String(command)))
        action->trigger();
}

void OpenWindow::settle()
{
    QApplication::processEvents();
}

} // namespace quillet::bench
