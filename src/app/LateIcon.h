#pragma once

#include <QIcon>
#include <QIconEngine>

namespace quillet {

/// A picture that is looked up when somebody asks for it, for many never are.
class LateIcon : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode,
               QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    bool isNull() override { return false; }

protected:
    /// Is called until it gives more than a null icon.
    [[nodiscard]] virtual QIcon lookUp() const = 0;

private:
    [[nodiscard]] const QIcon &icon();

    QIcon m_icon; ///< null until one is asked for
};

} // namespace quillet
