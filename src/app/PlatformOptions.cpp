#include "app/PlatformOptions.h"

#include <QLatin1String>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

struct PlatformOption
{
    const char *name;
    const char *value; ///< what it is called; null: none is taken
    bool isOfEveryWindow;
    const char *description;
};

constexpr std::array options{
    PlatformOption{"platform", "plugin", true, "Where the windows are shown."},
    PlatformOption{"platformpluginpath", "folder", true, "Where such plugins are looked for."},
    PlatformOption{"platformtheme", "theme", true, "The desktop to look like."},
    PlatformOption{"plugin", "plugin", true, "Load another plugin."},
    PlatformOption{"display", "display", true, "The display of X to use."},
    PlatformOption{"style", "style", true, "How controls are drawn."},
    PlatformOption{"stylesheet", "file", true, "A style sheet for the controls."},
    PlatformOption{"reverse", nullptr, true, "Lay the windows out from right to left."},
    PlatformOption{"qwindowgeometry", "geometry", false, "Size and place of the first window."},
    PlatformOption{"geometry", "geometry", false, "The same, on X."},
    PlatformOption{"qwindowtitle", "title", false, "Title of the first window."},
    PlatformOption{"title", "title", false, "The same, on X."},
    PlatformOption{"qwindowicon", "icon", false, "Icon of the first window."},
    PlatformOption{"icon", "icon", false, "The same, on X."},
    PlatformOption{"name", "name", true, "Name of the windows' class on X."},
    PlatformOption{"session", "session", false, "Go on with an earlier session."},
    PlatformOption{"nograb", nullptr, true, "Never grab mouse and keyboard."},
    PlatformOption{"dograb", nullptr, true, "Grab them in a debugger, too."},
    PlatformOption{"widgetcount", nullptr, false, "Say at the end how many controls there were."},
};

/// An argument without its one or two hyphens; empty when it begins with none.
QString nameOf(const QString &argument)
{
    if (!argument.startsWith(u'-'))
        return {};
    return argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
}

} // namespace

PlatformOptions takePlatformOptions(const QStringList &arguments)
{
    PlatformOptions found;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString name = nameOf(arguments[i]);
        // With these two the value may also stand behind a "=".
        const bool isStyle = name.startsWith(QLatin1String("style"));
        const QString beforeValue = isStyle ? name.section(u'=', 0, 0) : name;
        const auto *option = std::find_if(options.begin(), options.end(), [&](const auto &each) {
            return QLatin1String(each.name) == beforeValue;
        });
        if (i == 0 || option == options.end()) {
            found.others.append(arguments[i]);
            continue;
        }
        QStringList whole{arguments[i]};
        const bool valueFollows = option->value && beforeValue == name;
        if (valueFollows && i + 1 == arguments.size())
            found.incomplete = arguments[i];
        else if (valueFollows)
            whole.append(arguments[++i]);
        if (option->isOfEveryWindow)
            found.ofEveryWindow += whole;
    }
    return found;
}

QString platformOptionsText()
{
    QString text = QStringLiteral("Options of Qt:\n");
    for (const PlatformOption &option : options) {
        QString form = u'-' + QLatin1String(option.name);
        if (option.value)
            form += QLatin1String(" <") + QLatin1String(option.value) + u'>';
        text += QLatin1String("  ") + form.leftJustified(32) + QLatin1String(option.description) +
                u'\n';
    }
    return text;
}

} // namespace quillet
