#include "editor/SegmentedControl.h"

#include "framework/Speech.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyle>

namespace quillet {

namespace {

enum class Place { First, Middle, Last };

/// One of the joined buttons, painted from the palette alone so that it looks right in every style
/// and in light and dark.
class Segment : public QAbstractButton
{
public:
    Segment(const QString &title, Place place, QWidget *parent)
        : QAbstractButton(parent), m_place(place)
    {
        setText(title);
        setCheckable(true);
        setAutoExclusive(true); // so that it passes for a radio button
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        QFont bold = font();
        bold.setBold(true); // the selected segment must not change in size
        const QFontMetrics metrics(bold);
        const int height = QPushButton(text()).sizeHint().height();
        return {metrics.horizontalAdvance(text()) + height, height};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        const auto color = [this, group](QPalette::ColorRole role) {
            return palette().color(group, role);
        };
        QColor ground =
            isChecked() ? palette().color(QPalette::Highlight) : color(QPalette::Button);
        if (isDown() || (underMouse() && isEnabled() && !isChecked()))
            ground = ground.lightness() < 128 ? ground.lighter(125) : ground.darker(108);

        painter.setPen(QPen(color(QPalette::Mid), 1));
        painter.setBrush(ground);
        painter.drawPath(outline(0.5));
        if (hasFocus()) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(
                QPen(color(isChecked() ? QPalette::HighlightedText : QPalette::Highlight), 1.5));
            painter.drawPath(outline(3));
        }
        QFont textFont = font();
        textFont.setBold(isChecked());
        painter.setFont(textFont);
        painter.setPen(isChecked() ? palette().color(QPalette::HighlightedText)
                                   : color(QPalette::ButtonText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
    }

    void enterEvent(QEnterEvent *) override { update(); }
    void leaveEvent(QEvent *) override { update(); }

private:
    /// The segment's shape, round at the ends of the row only.
    [[nodiscard]] QPainterPath outline(qreal inset) const
    {
        constexpr qreal radius = 5;
        const bool mirrored = layoutDirection() == Qt::RightToLeft;
        const bool roundLeft = m_place == (mirrored ? Place::Last : Place::First);
        const bool roundRight = m_place == (mirrored ? Place::First : Place::Last);
        // What is not round reaches past the edge and is clipped there, so that neighbours share a
        // line.
        QRectF shape = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
        QPainterPath clip;
        clip.addRect(shape);
        if (!roundLeft)
            shape.setLeft(shape.left() - 2 * radius);
        if (!roundRight)
            shape.setRight(shape.right() + 2 * radius);
        QPainterPath round;
        round.addRoundedRect(shape, radius, radius);
        return round.intersected(clip);
    }

    Place m_place;
};

} // namespace

SegmentedControl::SegmentedControl(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(*this, QAccessible::Grouping);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&m_group, &QButtonGroup::idClicked, this, &SegmentedControl::segmentClicked);
}

void SegmentedControl::setSegments(const QStringList &titles)
{
    for (int i = 0; i < titles.size(); ++i) {
        const Place place = i == 0                        ? Place::First
                            : i == int(titles.size()) - 1 ? Place::Last
                                                          : Place::Middle;
        auto *segment = new Segment(titles[i], place, this);
        segment->setObjectName(QStringLiteral("segment%1").arg(i));
        segment->setAccessibleName(titles[i]);
        layout()->addWidget(segment);
        m_group.addButton(segment, i);
    }
}

void SegmentedControl::setSegmentEnabled(int segment, bool enabled)
{
    m_group.button(segment)->setEnabled(enabled);
}

void SegmentedControl::setSegmentToolTip(int segment, const QString &text)
{
    m_group.button(segment)->setToolTip(text);
}

void SegmentedControl::setSelectedSegment(int segment)
{
    if (segment >= 0) {
        m_group.button(segment)->setChecked(true);
    } else if (QAbstractButton *selected = m_group.checkedButton()) {
        m_group.setExclusive(false);
        selected->setChecked(false);
        m_group.setExclusive(true);
    }
}

} // namespace quillet
