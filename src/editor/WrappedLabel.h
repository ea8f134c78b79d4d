#pragma once

#include <QLabel>

namespace quillet {

/// A label of several lines for whoever knows how wide it shall be: it breaks its text into lines
/// for that width alone. An ordinary one does so for every width that a layout may think of, which
/// takes longer than all else in showing a window.
class WrappedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(QWidget *parent = nullptr);

    /// Makes it as wide, and as high as its text is then.
    void setTextWidth(int width);
    void setText(const QString &text);

    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return minimumSize(); }

protected:
    void changeEvent(QEvent *event) override;

private:
    void fit();
};

} // namespace quillet
