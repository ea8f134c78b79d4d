#pragma once

#include <QAbstractTableModel>
#include <QFont>

namespace quillet {

class ViewController;

/// The rows of the station table: what the editor's current list holds, as text and check marks.
/// Reads stations, never changes them.
class StationTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit StationTableModel(const ViewController &controller, QObject *parent = nullptr);

    /// The current list has changed, in any way.
    void reload();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    [[nodiscard]] QStringList mimeTypes() const override;
    /// The indexes of the dragged rows as decimal text, ascending, separated by blanks.
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// The rows that mimeData put there; none for other data.
    [[nodiscard]] static QList<qsizetype> draggedRows(const QMimeData &data);

private:
    const ViewController &m_controller;
    QFont m_font;
    int m_rows = 0; ///< as last told to the views
};

} // namespace quillet
