#include "framework/Speech.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QWindow>

namespace quillet {

namespace {

constexpr char roleProperty[] = "accessibleRole";
constexpr char waitingProperty[] = "waitsToSpeak"; // for a window of the program to be in front

// What makes readers speak: on some platforms an event, on the others what the widget is.
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
constexpr QAccessible::Role speakingRole = QAccessible::AlertMessage;
#else
constexpr QAccessible::Role speakingRole = QAccessible::Notification;
#endif

/// A reader would even say that there is an empty one.
class Speaking : public QAccessibleWidget
{
public:
    explicit Speaking(QWidget *widget) : QAccessibleWidget(widget, speakingRole) {}

    [[nodiscard]] QAccessible::Role role() const override
    {
        return text(QAccessible::Name).isEmpty() ? QAccessible::StaticText : speakingRole;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const QString told = QAccessibleWidget::text(kind);
        const auto *label = qobject_cast<QLabel *>(widget());
        return told.isEmpty() && label && kind == QAccessible::Name ? label->text() : told;
    }
};

void announce(QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(&widget, widget.accessibleName());
    QAccessible::updateAccessibility(&announcement);
#else
    QAccessibleEvent alert(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (widget.isVisible()) { // or its becoming so will be told
        QAccessibleEvent shown(&widget, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    }
#endif
}

#ifdef __GNUC__
__attribute__((no_sanitize("vptr"))) // the web engine asks for objects of its own without a type
#endif
QAccessibleInterface *
interfaceOf(const QString &, QObject *object)
{
    if (!object || !object->isWidgetType())
        return nullptr;
    const QVariant property = object->property(roleProperty);
    if (!property.isValid())
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    const auto role = static_cast<QAccessible::Role>(property.toInt());
    return role == speakingRole ? new Speaking(widget) : new QAccessibleWidget(widget, role);
}

} // namespace

void setAccessibleRole(QWidget &widget, QAccessible::Role role)
{
    static const bool isInstalled = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(isInstalled)
    widget.setProperty(roleProperty, static_cast<int>(role));
}

void makeSpeakable(QWidget &widget)
{
    setAccessibleRole(widget, speakingRole);
}

void speak(QWidget &widget, const QString &text)
{
    widget.setAccessibleName(text);
    if (text.isEmpty())
        return;
    if (QGuiApplication::focusWindow())
        return announce(widget);
    // A program that has just been started is not listened to yet.
    if (widget.property(waitingProperty).toBool())
        return;
    widget.setProperty(waitingProperty, true);
    const auto again = [&widget] {
        widget.setProperty(waitingProperty, false);
        if (!widget.accessibleName().isEmpty())
            announce(widget);
    };
    QObject::connect(
        qApp, &QGuiApplication::focusWindowChanged, &widget, again,
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

/// Where the name is what is chosen, readers are left with the description.
void nameChoice(QComboBox &box, const QString &name)
{
    box.setAccessibleName(name);
#ifdef Q_OS_UNIX
    box.setAccessibleDescription(name);
#endif
    box.view()->setAccessibleName(name);
}

void speakCurrentItem(QWidget *view)
{
    if (!qobject_cast<QAbstractItemView *>(view) || !QAccessible::isActive() || !view->hasFocus())
        return;
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(view);
    QAccessibleInterface *item = told ? told->focusChild() : nullptr;
    if (!item || item->object() == view)
        return;
    QAccessibleEvent focus(item, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

void speakCurrentItems()
{
    const auto speakLater = [](QWidget *, QWidget *now) {
        // After what Qt tells by itself, or that would be the last thing heard.
        QMetaObject::invokeMethod(
            qApp, [view = QPointer(now)] { speakCurrentItem(view); }, Qt::QueuedConnection);
    };
    QObject::connect(qApp, &QApplication::focusChanged, qApp, speakLater);
}

} // namespace quillet
