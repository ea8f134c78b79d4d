#pragma once

#include <QAbstractTableModel>
#include <QFont>

#include <array>

namespace quillet {

class StationComparison;

/// The rows of a comparison that are on show, as text and check marks. Decides nothing: a check is
/// handed to the comparison, which must outlive it.
class ComparisonModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Check, List, NumberHere, NumberThere, NameHere, NameThere, Difference };
    static constexpr int columns = Difference + 1;

    explicit ComparisonModel(StationComparison &comparison, QObject *parent = nullptr);

    /// In percent; whoever sets it has the cells drawn anew.
    void setTextSize(int percent);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    [[nodiscard]] QVariant checkData(std::size_t row, int role) const;
    [[nodiscard]] QString textAt(std::size_t row, int column) const;

    StationComparison &m_comparison;
    const std::array<const char *, columns> m_titles;
    QFont m_font;
};

} // namespace quillet
