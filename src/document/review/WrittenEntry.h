#pragma once

#include "document/review/EntryKeys.h"
#include "xml/Value.h"

#include <QStringList>

#include <cstddef>
#include <vector>

namespace quillet {

// Entries as they are after being written and read: a text is the same without the blanks around
// it, and an empty one is as good as none. They are looked at where they are; none is made anew.

/// Whether two hold the same, whatever the order, besides the fields of those names.
[[nodiscard]] bool areWrittenSame(const Dictionary &a, const Dictionary &b,
                                  const QStringList &without = {});

/// Hashes of one entry, equal for entries that are the same so; whatever the order of its fields.
struct WrittenHashes
{
    std::size_t all = 0;
    std::size_t unedited = 0;          ///< without the fields that editing changes
    std::size_t uneditedAndNumber = 0; ///< without these, but for the number
    std::size_t butNumber = 0;
};

/// Makes them, the quicker the more entries in turn share their table of keys.
class WrittenHasher
{
public:
    explicit WrittenHasher(const EntryKeys &keys);

    [[nodiscard]] WrittenHashes hashesOf(const Dictionary &entry);
    /// One for each entry, of its identity alone, which takes much less time.
    [[nodiscard]] std::vector<std::size_t> identitiesOf(const std::vector<Dictionary> &entries);

    [[nodiscard]] const QStringList &edited() const { return m_keys.edited; }
    [[nodiscard]] const QStringList &editedButNumber() const { return m_editedButNumber; }
    /// The one field of the number, if there is one.
    [[nodiscard]] const QStringList &number() const { return m_number; }

private:
    struct Field
    {
        qsizetype position;
        std::size_t key; ///< its hash
        bool isEdited;
        bool isNumber;
    };
    void readKeys(const Dictionary &entry);

    EntryKeys m_keys;
    QStringList m_editedButNumber;
    QStringList m_number;
    Dictionary::Keys m_keysRead; ///< whose fields these are
    std::vector<Field> m_fields;
    std::vector<Field> m_identity;
};

} // namespace quillet
