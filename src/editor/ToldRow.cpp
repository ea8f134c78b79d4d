#include "editor/ToldRow.h"

#include "editor/Contrast.h"
#include "editor/ToldLine.h"
#include "framework/Speech.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace quillet {

ToldRow::ToldRow(QWidget *parent) : QWidget(parent), m_line(new ToldLine), m_undo(new QLabel)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(10);
    row->addWidget(m_line);
    row->addWidget(m_undo, 0, Qt::AlignTop);
    row->addStretch(1);
    m_undo->setObjectName(QStringLiteral("toldUndo"));
    m_undo->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setAccessibleRole(*m_undo, QAccessible::Link);
    m_undo->setAccessibleName(qtTrId("kUndoLink"));
    m_undo->hide();
    writeLink();
    connect(m_undo, &QLabel::linkActivated, this, &ToldRow::undoRequested);
    connect(m_line, &ToldLine::silenced, m_undo, &QWidget::hide);
}

void ToldRow::tell(const QString &text)
{
    m_undo->hide();
    m_line->tell(text);
}

void ToldRow::tellEdit(const QString &text)
{
    m_line->tell(text);
    m_undo->show();
}

void ToldRow::writeLink()
{
    m_undo->setText(QStringLiteral("<a href=\"undo\" style=\"color:%1\">%2</a>")
                        .arg(linkColor(palette(), backgroundRole()).name(),
                             qtTrId("kUndoLink").toHtmlEscaped()));
}

void ToldRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        writeLink();
}

} // namespace quillet
