#pragma once

#include "editor/EditorOutlets.h"

#include <QLabel>

namespace quillet {

/// The hint that lies over the table while it has no stations to show: why, and a link that leads
/// on.
class EmptyDocText : public QLabel
{
    Q_OBJECT

public:
    /// Covers the widget, which keeps getting whatever is dropped there.
    explicit EmptyDocText(QWidget *covered);

    void showHint(EmptyHint hint);

signals:
    void openRequested();
    void tvRequested();
    void radioRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void follow(const QString &link);

    EmptyHint m_hint = EmptyHint::None;
};

} // namespace quillet
