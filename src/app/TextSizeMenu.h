#pragma once

#include <QMenu>

namespace quillet {

class Settings;

/// Makes the text of the station tables larger and smaller, in every window. Owned by the menu that
/// it is in.
class TextSizeMenu : public QMenu
{
    Q_OBJECT

public:
    /// The settings must outlive the menu.
    TextSizeMenu(Settings &settings, QWidget *parent);

private:
    QAction *add(const char *title, const char *name, const QList<QKeySequence> &shortcuts,
                 int (*next)(int));
    void validate();

    Settings &m_settings;
    QAction *m_larger = nullptr;
    QAction *m_smaller = nullptr;
    QAction *m_normal = nullptr;
};

} // namespace quillet
