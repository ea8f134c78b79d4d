#pragma once

#include "cli/ListChoice.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace quillet {

/// A table of stations, and the list that it says its rows are of.
struct ListedRows
{
    QByteArray bytes;
    std::optional<ChosenList> list; ///< without its stations; none when nothing is said
};

/// A table whose columns "source" and "mode" tell the lists of its rows, as one for each list. In
/// those, the rows of others are blank, so that each keeps its line. Any other table stays as it
/// is. None, with the reason, where a row tells a list that there is not.
[[nodiscard]] std::optional<std::vector<ListedRows>> rowsByList(const QByteArray &bytes,
                                                                QString &problem);

} // namespace quillet
