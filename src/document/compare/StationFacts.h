#pragma once

#include "document/compare/StationContent.h"
#include "document/compare/StationIdentity.h"
#include "document/compare/TextNumbers.h"

#include <QHash>

#include <cstddef>
#include <utility>
#include <vector>

namespace quillet {

/// What stations are found again by, each fact as a number that is the same for equal facts: so
/// that each text is read and compared once, however often it is asked for. Numbers of one kind
/// count up from 0. Facts are read when they are first asked for. Held by one comparison; the
/// stations must outlive it, and stay as they are.
class StationFacts
{
public:
    using Number = TextNumbers::Number;
    static constexpr Number none = -1; ///< nothing is told

    /// Makes room for so many stations.
    void reserve(std::size_t count) { m_stations.reserve(count); }
    /// Adds a station. Returns its place, counted from 0, by which it is asked for.
    std::size_t add(const LGStation &station);

    [[nodiscard]] const LGStation &station(std::size_t place) const
    {
        return *m_stations[place].station;
    }
    [[nodiscard]] Number identity(std::size_t place) const { return m_stations[place].identity; }
    [[nodiscard]] Number programNumber(std::size_t place) const
    {
        return static_cast<Number>(station(place).progNum()); // of 14 bits
    }
    [[nodiscard]] Number frequency(std::size_t place);
    [[nodiscard]] Number name(std::size_t place); ///< letter for letter
    [[nodiscard]] Number looseName(std::size_t place);
    [[nodiscard]] Number content(std::size_t place);
    /// What editing leaves of the content.
    [[nodiscard]] Number unedited(std::size_t place);
    /// Two facts as one; none if one of them is.
    [[nodiscard]] Number both(Number fact, Number other);

    /// The numbers of all facts so far are below it.
    [[nodiscard]] std::size_t end() const { return m_end; }

private:
    static constexpr Number unread = -2;
    struct Facts
    {
        const LGStation *station;
        Number identity;
        Number frequency = unread;
        Number name = unread;
        Number content = unread;
        Number unedited = unread;
    };
    Number number(TextNumbers &texts, QStringView text);
    template<typename Fact>
    Number number(QHash<Fact, Number> &numbers, const Fact &fact);
    void readContent(Facts &facts);

    IdentityReader m_reader;
    ContentHasher m_hasher;
    std::vector<Facts> m_stations;
    std::size_t m_end = 0;
    QHash<StationIdentity, Number> m_identities;
    QHash<qint64, Number> m_frequencies;
    TextNumbers m_names;
    TextNumbers m_looseNames;
    std::vector<Number> m_looseOf; ///< of each name
    QHash<WholeContent, Number> m_contents;
    QHash<UneditedContent, Number> m_unedited;
    QHash<std::pair<Number, Number>, Number> m_pairs;
};

} // namespace quillet
