#pragma once

#include <QByteArrayView>

#include <vector>

/// Where values stand in a text in JSON. It must be one that was decoded: nothing is checked, and
/// of any other text the places that are told mean nothing.
namespace quillet {

struct JSONSpan
{
    qsizetype start = 0;
    qsizetype end = 0; ///< behind its last byte

    [[nodiscard]] QByteArrayView in(QByteArrayView text) const
    {
        return text.sliced(start, end - start);
    }
};

struct JSONMember
{
    JSONSpan name; ///< with its quotation marks
    JSONSpan value;
};

/// The values of the array, and the members of the object, that begins at a place, in their order.
/// Empty when none does.
[[nodiscard]] std::vector<JSONSpan> elementsInJSON(QByteArrayView text, qsizetype array);
[[nodiscard]] std::vector<JSONMember> membersInJSON(QByteArrayView text, qsizetype object);

/// Whether a string, in its quotation marks, is that text in UTF-8, however it is spelt.
[[nodiscard]] bool spells(QByteArrayView string, QByteArrayView utf8);

} // namespace quillet
