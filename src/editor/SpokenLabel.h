#pragma once

#include <QLabel>

namespace quillet {

/// A line of text that screen readers speak when it is told to, wherever the focus is.
class SpokenLabel : public QLabel
{
    Q_OBJECT

public:
    explicit SpokenLabel(QWidget *parent = nullptr);

    /// What is on show need not be the same.
    void speak(const QString &text);
};

} // namespace quillet
