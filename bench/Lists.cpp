#include "bench/Lists.h"

#include <QFile>

#include <cstdio>

namespace quillet::bench {

const QByteArray &Lists::bytes(const char *name) const
{
    const auto found = m_bytes.find(name);
    if (found != m_bytes.end())
        return found->second;
    QFile file(path(name));
    if (!file.open(QIODevice::ReadOnly))
        std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()),
                     qPrintable(file.errorString()));
    return m_bytes[name] = file.isOpen() ? file.readAll() : QByteArray();
}

QString Lists::path(const char *name) const
{
    return m_folder.filePath(QString::fromLatin1(name) + QStringLiteral(".tll"));
}

} // namespace quillet::bench
