#pragma once

#include "document/review/EntryMatching.h"
#include "xml/Value.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

namespace quillet {

struct ChannelList;
class LGStation;

/// What a list holds that a writing of it must bring back, for one of the two variants of the file.
/// Lives no longer than the list.
class ListContent
{
public:
    [[nodiscard]] static std::unique_ptr<ListContent> of(const ChannelList &list);
    virtual ~ListContent() = default;
    Q_DISABLE_COPY_MOVE(ListContent)

    /// The stations, or channels, as they should stand in the file, each once.
    [[nodiscard]] const std::vector<Dictionary> &expected() const { return m_expected; }
    /// Those that stand in a file that was read again.
    [[nodiscard]] virtual std::vector<Dictionary> foundIn(const ChannelList &again) const = 0;
    /// The station of each that is expected; null where that is none.
    [[nodiscard]] const std::vector<const LGStation *> &stations() const { return m_stations; }
    /// The same of those that stand in a file that was read again.
    [[nodiscard]] virtual std::vector<const LGStation *>
    stationsIn(const ChannelList &again) const = 0;
    [[nodiscard]] virtual EntryKeys keys() const = 0;
    /// How a sheet names a station: the name it would be shown with, or its number. Asks the entry
    /// alone, as the station's own name is decoded when it is shown and not before.
    [[nodiscard]] virtual QString nameOf(const Dictionary &entry) const = 0;

    /// The tags between which the stations stand.
    struct Enclosure
    {
        QByteArrayView start; ///< what the first of them begins with
        QByteArrayView end;   ///< the whole end tag of the last
    };
    [[nodiscard]] virtual Enclosure enclosure() const = 0;
    /// The tree of a file without the stations.
    [[nodiscard]] virtual Dictionary surroundings(const Dictionary &tree) const = 0;
    /// Whether something beside the stations that the tree does not tell is otherwise in the file
    /// that was read again.
    [[nodiscard]] virtual bool losesMembers(const ChannelList &again) const = 0;
    /// Whether the writing turned text or attributes of stations into something else.
    [[nodiscard]] virtual bool losesMarkup(const QByteArray &before,
                                           const QByteArray &after) const = 0;
    /// How many numbers have another form, and members that were named again are gone, in a file
    /// that was read again.
    [[nodiscard]] virtual qsizetype rewrittenValues(const ChannelList &again) const = 0;

    /// The lists hold every station once.
    [[nodiscard]] bool areListed() const { return m_areListed; }

protected:
    explicit ListContent(const ChannelList &list) : m_list(list) {}
    [[nodiscard]] const ChannelList &list() const { return m_list; }

    std::vector<Dictionary> m_expected;
    std::vector<const LGStation *> m_stations;
    bool m_areListed = true;

private:
    const ChannelList &m_list;
};

} // namespace quillet
