#include "app/ApplicationIcon.h"

#include <array>

namespace quillet {

namespace {

constexpr std::array sizes{16, 24, 32, 48, 64, 128, 256};

} // namespace

QList<QSize> ApplicationIcon::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    QList<QSize> all;
    for (const int size : sizes)
        all.append({size, size});
    return all;
}

QIcon ApplicationIcon::lookUp() const
{
    QIcon pictures;
    for (const int size : sizes)
        pictures.addFile(QStringLiteral(":/icons/quillet-%1.png").arg(size));
    return pictures;
}

} // namespace quillet
