#include "editor/SpokenLabel.h"

#include "framework/Speech.h"

namespace quillet {

SpokenLabel::SpokenLabel(QWidget *parent) : QLabel(parent)
{
    makeSpeakable(*this);
    setWordWrap(true);
    setTextFormat(Qt::PlainText); // names of files may look like markup
}

void SpokenLabel::speak(const QString &text)
{
    quillet::speak(*this, text);
}

} // namespace quillet
