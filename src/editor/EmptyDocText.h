#pragma once

#include "editor/EditorOutlets.h"
#include "editor/WrappedLabel.h"

namespace quillet {

/// The hint in the place of a table that has no stations to show: why, and a link that leads on.
/// Hidden while there are stations.
class EmptyDocText : public WrappedLabel
{
    Q_OBJECT

public:
    explicit EmptyDocText(QWidget *parent = nullptr);

    void showHint(EmptyHint hint);

signals:
    void tvRequested();
    void radioRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void follow(const QString &link);

    EmptyHint m_hint = EmptyHint::None;
};

} // namespace quillet
