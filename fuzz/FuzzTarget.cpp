#include "FuzzTarget.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const QCoreApplication app(*argc, *argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

namespace quillet::fuzzing {

QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

void requireNone(const char *fault)
{
    require(!fault, fault);
}

} // namespace quillet::fuzzing
