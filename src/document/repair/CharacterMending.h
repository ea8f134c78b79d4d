#pragma once

#include <QByteArray>

namespace quillet {

class TextChanges;

/// The text without the characters that no XML text may hold; how many there were is added to the
/// count.
[[nodiscard]] QByteArray withoutControls(const QByteArray &utf8, qsizetype &count);

/// Notes what must become of the references between two places of a text: an "&" that begins none
/// is escaped, and one to a character that no XML text may hold is removed.
void mendReferences(const QByteArray &text, qsizetype from, qsizetype to, TextChanges &changes);

} // namespace quillet
