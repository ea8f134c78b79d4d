#include "app/Palettes.h"

#include <QApplication>
#include <QPalette>

namespace quillet {

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

} // namespace quillet
