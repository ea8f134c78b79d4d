#include "app/Palettes.h"

#include "editor/Contrast.h"

#include <QApplication>
#include <QPalette>

namespace quillet {

namespace {

constexpr double leastSeen = 1.5; // what is disabled is that pale on a light ground

} // namespace

void useLightPalette()
{
    QPalette light(QColor(0xEF, 0xEF, 0xEF), QColor(0xEF, 0xEF, 0xEF));
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF7, 0xF7));
    light.setColor(QPalette::Highlight, QColor(0x30, 0x8C, 0xC6));
    light.setColor(QPalette::HighlightedText, Qt::white);
    light.setColor(QPalette::Link, Qt::blue);
    QApplication::setPalette(light);
}

void useDarkPalette()
{
    QPalette dark(QColor(0x3A, 0x3A, 0x3C), QColor(0x2A, 0x2A, 0x2C));
    dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x20));
    dark.setColor(QPalette::AlternateBase, QColor(0x27, 0x27, 0x2A));
    dark.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xC4));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(0x6E, 0xA8, 0xFF));
    QApplication::setPalette(dark);
    // Styles draw the frames of boxes and buttons all but invisible on a dark ground.
    QPalette marks = dark;
    marks.setColor(QPalette::Base, QColor(0x5E, 0x5E, 0x62));
    for (const char *control : {"QCheckBox", "QRadioButton"})
        QApplication::setPalette(marks, control);
}

void mendPalette()
{
    QPalette palette = QApplication::palette();
    const QColor ground = palette.color(QPalette::Window);
    if (contrast(ground, Qt::black) >= leastSeen)
        return;
    const QColor ink = palette.color(QPalette::WindowText);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                QPalette::PlaceholderText, QPalette::Mid}) {
            if (contrast(palette.color(group, role), ground) < leastSeen)
                palette.setColor(group, role, blended(ink, ground, 0.6));
        }
    }
    QApplication::setPalette(palette);
    QPalette framed = palette;
    for (const auto role : {QPalette::Base, QPalette::Button})
        framed.setColor(role, blended(ink, ground, 0.25));
    framed.setColor(QPalette::PlaceholderText, blended(ink, ground, 0.75));
    for (const char *control :
         {"QCheckBox", "QRadioButton", "QLineEdit", "QPushButton", "QToolButton", "QComboBox"})
        QApplication::setPalette(framed, control);
}

} // namespace quillet
