#include "bench/MadeWith.h"

#include <QString>
#include <QSysInfo>

#include <libxml/xmlversion.h>
#include <nlohmann/json.hpp>

#ifdef __GLIBC__
#include <gnu/libc-version.h>
#endif

namespace quillet::bench {

std::string madeWith()
{
#if defined(__clang__)
    const std::string compiler =
        "clang " + QString::fromLatin1(__clang_version__).trimmed().toStdString();
#elif defined(__GNUC__)
    const std::string compiler = "gcc " __VERSION__;
#else
    const std::string compiler = "another compiler";
#endif
#ifdef __GLIBC__
    const std::string library = std::string(", glibc ") + gnu_get_libc_version();
#else
    const std::string library;
#endif
    const std::string json = std::to_string(NLOHMANN_JSON_VERSION_MAJOR) + '.' +
                             std::to_string(NLOHMANN_JSON_VERSION_MINOR) + '.' +
                             std::to_string(NLOHMANN_JSON_VERSION_PATCH);
    return QSysInfo::buildCpuArchitecture().toStdString() + ", " + compiler + library + ", Qt " +
           qVersion() + ", libxml2 " LIBXML_DOTTED_VERSION ", nlohmann_json " + json;
}

} // namespace quillet::bench
