#include "app/TextSizeMenu.h"

#include "files/Settings.h"

namespace quillet {

namespace {

const SettingFacts &facts()
{
    return Settings::factsOf(Setting::TextSize);
}

} // namespace

TextSizeMenu::TextSizeMenu(Settings &settings, QWidget *parent)
    : QMenu(qtTrId("kMenuTextSize"), parent), m_settings(settings)
{
    setObjectName(QStringLiteral("textSizeMenu"));
    // Where the plus needs Shift, the key is pressed without.
    m_larger = add("kMenuTextLarger", "largerText",
                   QKeySequence::keyBindings(QKeySequence::ZoomIn)
                       << QKeySequence(Qt::CTRL | Qt::Key_Equal),
                   [](int percent) { return percent + facts().step; });
    m_smaller =
        add("kMenuTextSmaller", "smallerText", QKeySequence::keyBindings(QKeySequence::ZoomOut),
            [](int percent) { return percent - facts().step; });
    m_normal = add("kMenuTextNormal", "normalText", {Qt::CTRL | Qt::Key_0},
                   [](int) { return facts().usual; });
    connect(&settings, &Settings::changed, this, &TextSizeMenu::validate);
    validate();
}

QAction *TextSizeMenu::add(const char *title, const char *name,
                           const QList<QKeySequence> &shortcuts, int (*next)(int))
{
    QAction *action = addAction(qtTrId(title));
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(shortcuts);
    connect(action, &QAction::triggered, this, [this, next] {
        m_settings.set(Setting::TextSize, next(m_settings.number(Setting::TextSize)));
    });
    return action;
}

void TextSizeMenu::validate()
{
    const int percent = m_settings.number(Setting::TextSize);
    m_larger->setEnabled(percent < facts().most);
    m_smaller->setEnabled(percent > facts().least);
    m_normal->setEnabled(percent != facts().usual);
}

} // namespace quillet
