#pragma once

#include "app/LateIcon.h"

namespace quillet {

/// The program's pictures. A desktop that knows the program by its desktop entry never asks for
/// one.
class ApplicationIcon : public LateIcon
{
public:
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    [[nodiscard]] QIconEngine *clone() const override { return new ApplicationIcon; }

protected:
    [[nodiscard]] QIcon lookUp() const override;
};

} // namespace quillet
