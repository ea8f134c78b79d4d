#pragma once

#include "document/review/ListContent.h"

namespace quillet {

/// The content of a file that keeps its stations as JSON: the channels, those that are no stations
/// included, in the file's order.
class BroadcastContent final : public ListContent
{
public:
    explicit BroadcastContent(const ChannelList &list);

    [[nodiscard]] std::vector<Dictionary> foundIn(const ChannelList &again) const override;
    [[nodiscard]] std::vector<const LGStation *>
    stationsIn(const ChannelList &again) const override;
    [[nodiscard]] EntryKeys keys() const override;
    [[nodiscard]] QString nameOf(const Dictionary &entry) const override;
    [[nodiscard]] Enclosure enclosure() const override;
    [[nodiscard]] Dictionary surroundings(const Dictionary &tree) const override;
    [[nodiscard]] bool losesMembers(const ChannelList &again) const override;
    [[nodiscard]] bool losesMarkup(const QByteArray &, const QByteArray &) const override
    {
        return false;
    }
    [[nodiscard]] qsizetype rewrittenValues(const ChannelList &again) const override;

private:
    [[nodiscard]] qsizetype formsEditedAway() const;
};

} // namespace quillet
