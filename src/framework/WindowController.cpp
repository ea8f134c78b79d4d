#include "framework/WindowController.h"

#include "files/FileNames.h"
#include "framework/Document.h"
#include "framework/ScreenPlace.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>

#include <algorithm>

namespace quillet {

namespace {

constexpr char frameNameProperty[] = "frameName";
constexpr QPoint cascadeStep{24, 24};

/// What follows the document's name in a title where that is the custom. Qt would add it to the
/// titles of all windows.
QString programName()
{
#ifdef Q_OS_MACOS
    return {};
#else
    return QStringLiteral(" \u2014 ") + QCoreApplication::applicationName();
#endif
}

} // namespace

WindowController::WindowController(std::unique_ptr<QMainWindow> window, const QString &frameName)
    : m_window(std::move(window)), m_frameName(frameName)
{
    m_window->setProperty(frameNameProperty, frameName);
    m_window->installEventFilter(this);
}

WindowController::~WindowController()
{
    m_window->removeEventFilter(this);
    closeWindow();
}

void WindowController::setDocument(Document *document)
{
    if (m_document)
        m_document->disconnect(this);
    m_document = document;
    if (!document)
        return;
    connect(document, &Document::fileUrlChanged, this,
            &WindowController::synchronizeWindowTitleWithDocumentName);
    connect(document, &Document::titleNameChanged, this,
            &WindowController::synchronizeWindowTitleWithDocumentName);
    connect(document, &Document::documentEditedChanged, this,
            [this] { m_window->setWindowModified(m_document->isDocumentEdited()); });
    synchronizeWindowTitleWithDocumentName();
    m_window->setWindowModified(document->isDocumentEdited());
}

void WindowController::synchronizeWindowTitleWithDocumentName()
{
    if (!m_document)
        return;
    const QString mark = QStringLiteral("[*]");
    const QString name = m_document->titleName().replace(mark, mark + mark);
    m_window->setWindowFilePath(readable(m_document->fileUrl().toLocalFile()));
    m_window->setWindowTitle(name + mark + programName());
}

void WindowController::showWindow()
{
    if (!m_hasFrame)
        restoreFrame();
    if (!m_wasShown)
        keepOnScreen(*m_window);
    m_hasFrame = true;
    m_wasShown = true;
    m_window->show();
}

void WindowController::raiseWindow()
{
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    showWindow();
    m_window->raise();
    // A question of the window gets the keys, not the window that it blocks.
    QWidget *active = m_window.get();
    for (QDialog *dialog : m_window->findChildren<QDialog *>()) {
        if (dialog->isVisible() && dialog->isModal())
            active = dialog;
    }
    active->activateWindow();
}

std::function<void()> WindowController::keepPlace() const
{
    return [] {};
}

void WindowController::closeWindow()
{
    if (!m_window->isVisible())
        return;
    QSettings().setValue(settingsKey(), m_window->saveGeometry());
    m_window->hide();
}

void WindowController::takeFrameOf(const QWidget &other)
{
    m_hasFrame = m_window->restoreGeometry(other.saveGeometry());
}

QString WindowController::settingsKey() const
{
    return QStringLiteral("windows/") + m_frameName;
}

void WindowController::restoreFrame()
{
    m_window->restoreGeometry(QSettings().value(settingsKey()).toByteArray());
    if (!m_window->isMaximized() && !m_window->isFullScreen())
        cascade();
}

void WindowController::cascade()
{
    // Without its frame: the one of a window that was not shown yet is not known.
    QPoint place = m_window->geometry().topLeft();
    while (const QWidget *other = windowAt(place))
        place = other->geometry().topLeft() + cascadeStep;
    if (place == m_window->geometry().topLeft())
        return;
    const QRect screen = m_window->screen()->availableGeometry();
    const bool fits = screen.contains(QRect(place, m_window->size()));
    m_window->setGeometry(
        QRect(fits ? place : screen.topLeft() + 2 * cascadeStep, m_window->size()));
}

const QWidget *WindowController::windowAt(const QPoint &place) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto isThere = [&](const QWidget *other) {
        return other != m_window.get() && other->isVisible() &&
               other->property(frameNameProperty) == m_frameName &&
               (other->geometry().topLeft() - place).manhattanLength() < cascadeStep.x();
    };
    const auto found = std::find_if(windows.begin(), windows.end(), isThere);
    return found == windows.end() ? nullptr : *found;
}

bool WindowController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window.get() || event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    event->ignore();
    emit closeRequested();
    return true;
}

} // namespace quillet
