#pragma once

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class QMainWindow;

namespace quillet {

class Document;

/// One window of a document: keeps the title, the modified mark and the remembered frame true, and
/// turns the window's close button into the document's question. Owned by its document; owns its
/// window.
class WindowController : public QObject
{
    Q_OBJECT

public:
    /// Takes the window; `frameName` is the key its size and place are remembered under.
    WindowController(std::unique_ptr<QMainWindow> window, const QString &frameName);
    ~WindowController() override;

    [[nodiscard]] QMainWindow *window() const { return m_window.get(); }
    [[nodiscard]] Document *document() const { return m_document; }
    /// Set when the document takes the controller.
    void setDocument(Document *document);

    /// Shows the document's content anew, after it was read again.
    virtual void refill() = 0;
    /// Notes where the person is in the content; calling the answer goes there again. The base
    /// knows no places.
    [[nodiscard]] virtual std::function<void()> keepPlace() const;
    /// Whether the command with that name is enabled in this window's content.
    [[nodiscard]] virtual bool validateUserInterfaceItem(const QString &action) const = 0;

    /// Shows the window; the first time, where and as large as the last one with that frame name
    /// was, a little aside when another one is there.
    void showWindow();
    void raiseWindow();
    /// Takes the window off the screen without asking and remembers its frame.
    void closeWindow();
    /// Gives the window, before it is first shown, the frame of another one that goes away.
    void takeFrameOf(const QWidget &other);
    void synchronizeWindowTitleWithDocumentName();

signals:
    /// The person wants the window closed (close button or command); nothing has happened yet.
    void closeRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void restoreFrame();
    void cascade();
    /// Another visible window with the same frame name, at or very near that place.
    [[nodiscard]] const QWidget *windowAt(const QPoint &place) const;
    [[nodiscard]] QString settingsKey() const;

    std::unique_ptr<QMainWindow> m_window;
    QString m_frameName;
    QPointer<Document> m_document;
    bool m_hasFrame = false;
    bool m_wasShown = false;
};

} // namespace quillet
