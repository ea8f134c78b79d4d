#pragma once

#include <QButtonGroup>
#include <QStringList>
#include <QWidget>

namespace quillet {

/// A row of joined buttons of which at most one is selected. The arrow keys move between them.
class SegmentedControl : public QWidget
{
    Q_OBJECT

public:
    explicit SegmentedControl(QWidget *parent = nullptr);

    /// Makes one segment a title, all enabled, none selected. Called once.
    void setSegments(const QStringList &titles);
    void setSegmentEnabled(int segment, bool enabled);
    void setSegmentToolTip(int segment, const QString &text);
    /// -1 when none is selected.
    [[nodiscard]] int selectedSegment() const { return m_group.checkedId(); }
    /// Selects without a signal; -1 selects none.
    void setSelectedSegment(int segment);
    /// Named "segment0" and so on.
    [[nodiscard]] QAbstractButton *segment(int index) const { return m_group.button(index); }

signals:
    /// The person chose a segment, perhaps the selected one.
    void segmentClicked(int segment);

private:
    QButtonGroup m_group;
};

} // namespace quillet
