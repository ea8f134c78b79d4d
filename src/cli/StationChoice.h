#pragma once

#include "model/LGStation.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillet {

class Invocation;

/// The stations of one file that --stations, --named and --keys choose. Made for each file, for it
/// notes which of them fit none there.
class StationChoice
{
public:
    explicit StationChoice(const Invocation &invocation);

    /// What is wrong with how they are spelt; empty: nothing.
    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// Whether nothing chooses stations.
    [[nodiscard]] bool isEmpty() const { return m_wishes.empty(); }
    /// The stations of the list that are chosen, each once, in the order of the list.
    [[nodiscard]] StationList of(const StationList &list);
    /// What has fitted no station of any list so far, as it was given.
    [[nodiscard]] QStringList unmet() const;

private:
    struct Wish
    {
        QString text;
        bool isMet = false;
    };
    void readNumbers(const QString &part);
    void readKey(const QString &part);
    [[nodiscard]] std::size_t wish(const QString &text);

    std::vector<Wish> m_wishes;
    // Places of those, by what they wish for. Of several that wish for the same, the first.
    QHash<qint64, std::size_t> m_numbers;
    QHash<QString, std::size_t> m_names;       ///< plain and folded
    QHash<QString, std::size_t> m_keys;        ///< whole ones
    QHash<QString, std::size_t> m_identifiers; ///< keys without frequency and occurrence
    QString m_problem;
};

} // namespace quillet
