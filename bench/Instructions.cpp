#include "bench/Instructions.h"

#include <QFile>

namespace quillet::bench {

bool Instructions::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const qsizetype blank = line.indexOf(' ');
        bool isNumber = false;
        const double count = line.first(qMax(blank, qsizetype(0))).toDouble(&isNumber);
        if (isNumber)
            m_counts[line.sliced(blank).trimmed().toStdString()] = count;
    }
    return !m_counts.empty();
}

std::optional<double> Instructions::of(const std::string &row) const
{
    const auto found = m_counts.find(row);
    return found == m_counts.end() ? std::nullopt : std::optional(found->second);
}

} // namespace quillet::bench
