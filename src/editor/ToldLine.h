#pragma once

#include <QLabel>
#include <QTimer>

namespace quillet {

/// The quiet line at the bottom of a window that says what has just happened. It keeps its place
/// while it is empty, so that nothing moves when it speaks, and goes silent by itself. Screen
/// readers are told.
class ToldLine : public QLabel
{
    Q_OBJECT

public:
    explicit ToldLine(QWidget *parent = nullptr);

    /// In the place of what it said before.
    void tell(const QString &text);

signals:
    /// Screen readers were told of it.
    void announced(const QString &text);

private:
    QTimer m_silence;
};

} // namespace quillet
