#pragma once

#include <QProxyStyle>

namespace quillet {

/// The style of the desktop. Only the pictures of what is hidden when a window opens, a search
/// field's clear button and a menu bar's arrow, are looked up late: Qt finds out what kind of
/// file a picture is by loading every image plug-in there is.
class ProgramStyle : public QProxyStyle
{
public:
    [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption *option,
                                     const QWidget *widget) const override;
};

} // namespace quillet
