#pragma once

#include <QLayout>

#include <array>
#include <memory>

namespace quillet {

/// Two groups of controls at the ends of one line or, where that is too narrow for both, on a line
/// each. Owns its items.
class FoldingRow : public QLayout
{
    Q_OBJECT

public:
    /// Takes the two layouts out of the row, and their place in it.
    static void fold(QLayout &row);

    void addItem(QLayoutItem *item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    /// High enough for two lines.
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &place) override;

private:
    [[nodiscard]] bool isFolded(int width) const;

    std::array<std::unique_ptr<QLayoutItem>, 2> m_groups;
};

} // namespace quillet
