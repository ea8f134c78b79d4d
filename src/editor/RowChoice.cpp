#include "editor/RowChoice.h"

#include <QSet>

namespace quillet {

QList<qsizetype> chosenRows(RowChoice choice, const StationList &rows,
                            const QList<qsizetype> &selected, int source)
{
    const QSet<qsizetype> now(selected.begin(), selected.end());
    QSet<QString> types;
    if (choice == RowChoice::SameType) {
        for (const qsizetype row : selected)
            types.insert(rows[static_cast<std::size_t>(row)]->channelTypeForDisplay(source));
    }
    const auto isChosen = [&](qsizetype row) {
        const LGStation &station = *rows[static_cast<std::size_t>(row)];
        switch (choice) {
        case RowChoice::All:
            return true;
        case RowChoice::None:
            return false;
        case RowChoice::Inverted:
            return !now.contains(row);
        case RowChoice::SameType:
            return types.contains(station.channelTypeForDisplay(source));
        case RowChoice::Encrypted:
            return station.isEncrypted().value_or(false);
        }
        return false;
    };
    QList<qsizetype> chosen;
    for (qsizetype row = 0; row < static_cast<qsizetype>(rows.size()); ++row) {
        if (isChosen(row))
            chosen.append(row);
    }
    return chosen;
}

} // namespace quillet
