#pragma once

#include "editor/SpokenLabel.h"

#include <QTimer>

namespace quillet {

/// The quiet line at the bottom of a window that says what has just happened. It keeps its place
/// while it is empty, so that nothing moves when it speaks, and goes silent by itself. Screen
/// readers are told.
class ToldLine : public SpokenLabel
{
    Q_OBJECT

public:
    explicit ToldLine(QWidget *parent = nullptr);

    /// In the place of what it said before.
    void tell(const QString &text);

    /// As high as the text is at the line's width; one line at least.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }
    /// A status bar would ask for the height at the width that a text would like to have.
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }

signals:
    /// Screen readers were told of it.
    void announced(const QString &text);
    void silenced();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QTimer m_silence;
};

} // namespace quillet
