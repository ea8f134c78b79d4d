#include "app/ProgramStyle.h"

#include "app/LateIcon.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace quillet {

namespace {

class StandardIcon : public LateIcon
{
public:
    StandardIcon(const ProgramStyle &style, QStyle::StandardPixmap which, const QWidget *widget)
        : m_style(&style), m_which(which), m_widget(widget)
    {
    }

    [[nodiscard]] QIconEngine *clone() const override { return new StandardIcon(*this); }

protected:
    [[nodiscard]] QIcon lookUp() const override
    {
        return m_style ? m_style->QProxyStyle::standardIcon(m_which, nullptr, m_widget)
                       : QApplication::style()->standardIcon(m_which, nullptr, m_widget);
    }

private:
    QPointer<const ProgramStyle> m_style; ///< null: the desktop has changed its style
    QStyle::StandardPixmap m_which;
    QPointer<const QWidget> m_widget;
};

} // namespace

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption *option,
                                 const QWidget *widget) const
{
    if (which == SP_LineEditClearButton || which == SP_ToolBarHorizontalExtensionButton)
        return QIcon(new StandardIcon(*this, which, widget));
    return QProxyStyle::standardIcon(which, option, widget);
}

} // namespace quillet
