#pragma once

#include <QList>

class QItemSelectionModel;

/// The selection of a table whose whole rows are selected.
namespace quillet {

class DarkModeTableView;

/// Ascending, each once: what Qt knows. A RowSelection tells its rows sooner.
[[nodiscard]] QList<qsizetype> selectedRows(const QItemSelectionModel &selection);
/// Selects exactly those of the ascending rows that there are, and makes one of them the current
/// one.
void selectRows(DarkModeTableView &table, const QList<qsizetype> &rows);

} // namespace quillet
