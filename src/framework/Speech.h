#pragma once

#include <QAccessible>

class QComboBox;
class QString;
class QWidget;

namespace quillet {

/// What a widget is to assistive technology, where Qt takes it for something else. To be said
/// before anything asks for it, best in the widget's constructor.
void setAccessibleRole(QWidget &widget, QAccessible::Role role);

/// Lets a widget speak, wherever the focus is.
void makeSpeakable(QWidget &widget);

/// Has screen readers say a text, which becomes the name of a widget that may speak. One that is
/// not visible yet is heard as soon as it is.
void speak(QWidget &widget, const QString &text);

/// Names a combo box that has no label of its own.
void nameChoice(QComboBox &box, const QString &name);

/// Has the current item of a view, if it has the focus, told anew.
void speakCurrentItem(QWidget *view);

/// Does so from here on for every view that gets the focus; Qt tells of the view alone.
void speakCurrentItems();

} // namespace quillet
