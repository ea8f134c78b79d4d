#pragma once

#include "xml/Dictionary.h"

#include <QByteArray>

#include <array>
#include <deque>
#include <vector>

namespace quillet {

/// A name of elements and attributes, and what PlainScanner expects where it meets it, since it
/// was so the last time.
struct PlainName
{
    /// What stands before the text of a field: the end tag of the field before, if there is one,
    /// blanks, and its own start tag.
    struct Joint
    {
        QByteArrayView bytes;       ///< none when it cannot be expected again
        PlainName *field = nullptr; ///< none at the end tag of the element
        bool isInLines = false;
    };

    QByteArray text;
    QByteArray startTag; ///< without attributes
    QByteArray endTag;
    bool isOfXML = false;           ///< which reserves names that begin so
    PlainName *following = nullptr; ///< the element that last began after one of this name
    Joint first;                    ///< behind the start tag of an element of this name
    Joint next;                     ///< behind the text of a field of this name
    quint64 element = 0;            ///< the last one that had a field of this name
    // Of the last element of this name that was noted:
    std::vector<PlainName *> fields;
    Dictionary::Keys keys;
    // Of the last one that was noted with its attributes:
    std::vector<PlainName *> attributes;
    bool hasText = false;
    Dictionary::Keys attributedKeys;
};

/// The names in a text that ends there, before a null: as many of ASCII as a set would write.
class PlainNames
{
public:
    static constexpr int bitsOfPlaces = 12; ///< of which names take less than half

    explicit PlainNames(const char *end) : m_end(end) {}

    /// Goes behind a name, which mostly is the one expected; null when there is none that is taken.
    [[nodiscard]] PlainName *read(const char *&at, PlainName *expected);

private:
    const char *m_end;
    std::deque<PlainName> m_names;
    std::array<PlainName *, std::size_t{1} << bitsOfPlaces>
        m_places{}; ///< by a hash of their texts
};

} // namespace quillet
