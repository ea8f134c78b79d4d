#pragma once

#include "document/edit/ListStretch.h"
#include "model/LGStation.h"
#include "texts/StationDetails.h"

#include <QAbstractTableModel>
#include <QFont>

namespace quillet {

class ViewController;
struct ListChange;

/// The rows of the station table: what the editor has on show, as text and check marks, as it was
/// last told. Reads stations, never changes them: an edit is handed to the editor.
class StationTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What views ask for beside the usual.
    enum Role {
        SkippedRole = Qt::UserRole, ///< of any cell: whether its station is skipped
        GlyphRole,                  ///< the Glyph that a cell shows, or that stands for a title
    };

    explicit StationTableModel(ViewController &controller, QObject *parent = nullptr);

    /// Other stations may be on show, and anything of them may have changed.
    void reload();
    /// Follows a change of the list that the rows are of.
    void show(const ListChange &change);
    /// In percent; whoever sets it has the cells drawn anew.
    void setTextSize(int percent);
    void setNameColumnEditable(bool editable) { m_nameIsEditable = editable; }

    /// A number that the row's station has and no other; 0 when there is no such row.
    [[nodiscard]] quintptr numberOf(int row) const;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    [[nodiscard]] QStringList mimeTypes() const override;
    /// The indexes of the dragged rows as decimal text, ascending, separated by blanks.
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// The rows that mimeData put there; none for other data.
    [[nodiscard]] static QList<qsizetype> draggedRows(const QMimeData &data);

private:
    void takeRows();
    [[nodiscard]] bool moveBlock(const StationList &list, const ListStretch &changed);
    [[nodiscard]] bool rearrange(const StationList &list);
    void tellFields(const ListChange &change);
    void tellCells(const ListStretch &rows, int firstColumn, int lastColumn);
    [[nodiscard]] QVariant textData(const LGStation &station, const StationColumn &column,
                                    int role) const;
    [[nodiscard]] const SatelliteNames &satellites() const;

    ViewController &m_controller;
    QFont m_font;
    StationList m_rows;                                 ///< as last told to the views
    mutable std::optional<SatelliteNames> m_satellites; ///< once a column asked for them
    bool m_nameIsEditable = false;
};

} // namespace quillet
