#pragma once

#include "document/list/FileText.h"

#include <QString>

#include <optional>
#include <utility>

namespace quillet {

/// Which stretches of a file's text stand before the first and after the last station, so that a
/// save can put them back unchanged. Lengths count UTF-16 units of the text.
class FileLayout
{
public:
    FileLayout() = default;
    /// As another one was that had these; see the operations of those names.
    FileLayout(qsizetype headerLenATV, qsizetype headerLenDTV, qsizetype headerLenLegacy,
               std::optional<QString> footer)
        : m_headerLenATV(headerLenATV), m_headerLenDTV(headerLenDTV),
          m_headerLenLegacy(headerLenLegacy), m_footer(std::move(footer))
    {
    }

    /// Length of the text before the first ITEM of the analogue and of the digital section; 0 when
    /// none was found.
    [[nodiscard]] qsizetype headerLenATV() const { return m_headerLenATV; }
    [[nodiscard]] qsizetype headerLenDTV() const { return m_headerLenDTV; }
    /// Length of the text up to and including the tag of the JSON station list; 0 when there is
    /// none.
    [[nodiscard]] qsizetype headerLenLegacy() const { return m_headerLenLegacy; }
    /// The text from the closing tag of the last section to the end; none when none was found.
    [[nodiscard]] const std::optional<QString> &footer() const { return m_footer; }

    /// How far the first ITEM may start from the start of its section's tag, in characters.
    static constexpr qsizetype longestDistance = 9;
    /// A section whose first ITEM is too far from its tag.
    struct DistantItem
    {
        QLatin1String section;
        qsizetype distance = 0; ///< from the start of the tag, in characters
    };
    /// What made the last locate() fail; none when it did not.
    [[nodiscard]] const std::optional<DistantItem> &distantItem() const { return m_distantItem; }

    void clear() { *this = {}; }

    /// Looks for the sections that have stations and notes where the first ITEM of each and the
    /// closing tag of the last stand; what is not found leaves the earlier value. False when a
    /// first ITEM is too far from its section's tag.
    [[nodiscard]] bool locate(const FileText &text, bool hasAnalogue, bool hasDigital);
    /// Notes where the JSON station list stands; what is not found leaves the earlier value.
    void locateLegacy(const FileText &text);

private:
    struct SectionTags;
    [[nodiscard]] bool locateSection(const FileText &text, const SectionTags &tags,
                                     qsizetype &headerLength, FileText::Place &footer);

    qsizetype m_headerLenATV = 0;
    qsizetype m_headerLenDTV = 0;
    qsizetype m_headerLenLegacy = 0;
    std::optional<QString> m_footer;
    std::optional<DistantItem> m_distantItem;
};

} // namespace quillet
