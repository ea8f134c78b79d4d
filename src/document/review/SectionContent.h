#pragma once

#include "document/review/ListContent.h"

namespace quillet {

/// The content of a file that keeps its stations as ITEM elements in two sections.
class SectionContent final : public ListContent
{
public:
    explicit SectionContent(const ChannelList &list);

    [[nodiscard]] std::vector<Dictionary> foundIn(const ChannelList &again) const override;
    [[nodiscard]] std::vector<const LGStation *>
    stationsIn(const ChannelList &again) const override;
    [[nodiscard]] EntryKeys keys() const override;
    [[nodiscard]] QString nameOf(const Dictionary &entry) const override;
    [[nodiscard]] Enclosure enclosure() const override;
    [[nodiscard]] Dictionary surroundings(const Dictionary &tree) const override;
    [[nodiscard]] bool losesMembers(const ChannelList &) const override { return false; }
    [[nodiscard]] bool losesMarkup(const QByteArray &before,
                                   const QByteArray &after) const override;
    [[nodiscard]] qsizetype rewrittenValues(const ChannelList &) const override { return 0; }
};

} // namespace quillet
