#pragma once

#include "model/LGStation.h"
#include "texts/CellTexts.h"

#include <QMimeData>

#include <memory>
#include <vector>

namespace quillet {

/// Stations on a clipboard, as they were when they were copied. The forms that others may want them
/// in are made when somebody asks for one: of thousands of stations that takes longer than anybody
/// should wait who only copies them.
class CopiedStations : public QMimeData
{
    Q_OBJECT

public:
    /// The form that finds the stations again; see pastedStations.
    static const QString rowsFormat;
    static const QString textFormat;

    /// The stations are of the list.
    CopiedStations(const StationList &stations, const StationList &list, CellTexts cells,
                   const std::vector<ColumnContent> &columns);

    [[nodiscard]] QStringList formats() const override;
    /// Those that were copied themselves, in their order; null for one that is gone.
    [[nodiscard]] StationList originals() const;

protected:
    [[nodiscard]] QVariant retrieveData(const QString &format, QMetaType type) const override;

private:
    [[nodiscard]] QString lines() const;
    [[nodiscard]] HtmlTable table() const;
    [[nodiscard]] QByteArray keyedRows() const;

    std::vector<std::weak_ptr<LGStation>> m_originals;
    StationList m_stations; ///< of the list
    StationList m_list;     ///< a copy
    CellTexts m_cells;
    std::vector<ColumnContent> m_columns;
};

} // namespace quillet
