#pragma once

#include <QIcon>
#include <QIconEngine>

namespace quillet {

/// The program's pictures, which are read when somebody asks for one: a desktop that knows the
/// program by its desktop entry never does.
class ApplicationIcon : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode,
               QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    bool isNull() override { return false; }
    [[nodiscard]] QIconEngine *clone() const override { return new ApplicationIcon; }

private:
    [[nodiscard]] const QIcon &pictures();

    QIcon m_pictures; ///< null until one is asked for
};

} // namespace quillet
