#include "app/HelpLoader.h"

#include "app/ProgramFiles.h"
#include "texts/Translations.h"

namespace quillet {

namespace {

QString moduleName()
{
    return QStringLiteral("quillet_help");
}

} // namespace

std::optional<QString> resourceFolder()
{
    // As built, and as installed.
    return programFolder({"/resources", "/../share/quillet", "/../Resources"},
                         QStringLiteral("User-Guide/index.html"),
                         {u'/' + shownLanguage(), QString()});
}

std::optional<QString> helpModule()
{
    return programModule(moduleName());
}

std::unique_ptr<HelpBrowser> loadHelpBrowser(SystemServices &services)
{
    auto *module = qobject_cast<HelpModule *>(loadProgramModule(moduleName()));
    return module ? module->makeBrowser(services) : nullptr;
}

} // namespace quillet
