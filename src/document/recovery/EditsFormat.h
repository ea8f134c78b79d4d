#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace quillet {

struct ListDifference;

/// The bytes that a difference is kept in on the disk.
namespace editsformat {

[[nodiscard]] QByteArray encoded(const ListDifference &difference);
/// None unless they hold a sound difference and nothing else.
[[nodiscard]] std::optional<ListDifference> decoded(QByteArrayView bytes);

/// Puts content into a frame by which its version is told and any damage.
[[nodiscard]] QByteArray framed(const QByteArray &content);
/// The content; none when the frame is another version's or anything is damaged. Takes no more
/// memory than a thousand times the bytes.
[[nodiscard]] std::optional<QByteArray> unframed(QByteArrayView bytes);

} // namespace editsformat

} // namespace quillet
