#pragma once

#include "document/repair/CharacterData.h"
#include "xml/JSONSpans.h"
#include "xml/Value.h"

#include <QByteArray>

#include <vector>

namespace quillet {

/// What is to stand in a place of the list of channels.
struct PlacedChannel
{
    std::size_t source = 0;             ///< the place where it was read
    const Dictionary *read = nullptr;   ///< as it was read
    const Dictionary *edited = nullptr; ///< as it is now; null when that is the same
};

/// The JSON of a list as it stands in its file. What is written of it anew is that of which the
/// meaning changes; all else keeps its bytes.
class BroadcastText
{
public:
    /// Of the content of the JSON's element, and what that says, which was decoded.
    BroadcastText(QByteArray content, CharacterData data);

    /// Appends the content with other channels in the places, of which there must be as many. A
    /// member that changes does so wherever it is named; one that is new stands behind all others,
    /// after blanks like theirs.
    void appendWith(const std::vector<PlacedChannel> &channels, QByteArray &output) const;

private:
    void append(const JSONSpan &span, QByteArray &output) const;
    void appendChannel(const PlacedChannel &channel, QByteArray &output) const;
    void appendAdded(const Dictionary &added, const std::vector<JSONMember> &members,
                     QByteArray &output) const;

    QByteArray m_content;
    CharacterData m_data;
    std::vector<JSONSpan> m_channels; ///< places in the text of the data, as all here
};

} // namespace quillet
