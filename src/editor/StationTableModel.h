#pragma once

#include <QAbstractTableModel>
#include <QFont>
#include <QHash>

#include <vector>

namespace quillet {

class LGStation;
class ViewController;

/// The rows of the station table: what the editor's current list holds, as text and check marks.
/// Reads stations, never changes them: an edit is handed to the editor.
class StationTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit StationTableModel(ViewController &controller, QObject *parent = nullptr);

    /// The current list has changed, in any way.
    void reload();
    void setNameColumnEditable(bool editable) { m_nameIsEditable = editable; }

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
    ViewController &m_controller;
    QFont m_font;
    int m_rows = 0;                         ///< as last told to the views
    std::vector<const LGStation *> m_shown; ///< likewise; only compared
    bool m_isEditing = false;
    bool m_nameIsEditable = false;
    /// Names typed since the last reload, by row: a station keeps showing the name it was read
    /// with.
    QHash<int, QString> m_typedNames;
};

} // namespace quillet
