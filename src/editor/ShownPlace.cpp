#include "editor/ShownPlace.h"

#include <QHash>
#include <QSet>

namespace quillet {

namespace {

QString nameOf(const LGStation &station)
{
    const auto service = station.service_id();
    const auto transport = station.transport_id();
    const auto network = station.originalNetwork_id();
    return service && transport && network ? *network + u'-' + *transport + u'-' + *service
                                           : station.shownName();
}

} // namespace

QList<ShownPlace::Key> ShownPlace::keysOf(const StationList &stations)
{
    QHash<QString, int> counts;
    QList<Key> keys;
    keys.reserve(static_cast<qsizetype>(stations.size()));
    for (const StationPtr &station : stations) {
        const QString name = nameOf(*station);
        keys.append({name, counts[name]++});
    }
    return keys;
}

ShownPlace::ShownPlace(int source, const StationList &shown, const EditorOutlets &outlets)
    : m_source(source)
{
    const QList<Key> keys = keysOf(shown);
    for (const qsizetype row : outlets.selectedRows())
        m_selected.append(keys.value(row));
    m_top = keys.value(outlets.topRow());
}

QList<qsizetype> ShownPlace::selectedRows(const StationList &shown) const
{
    const QSet<Key> wanted(m_selected.begin(), m_selected.end());
    const QList<Key> keys = keysOf(shown);
    QList<qsizetype> rows;
    for (qsizetype row = 0; row < keys.size(); ++row) {
        if (wanted.contains(keys[row]))
            rows.append(row);
    }
    return rows;
}

qsizetype ShownPlace::topRow(const StationList &shown) const
{
    return keysOf(shown).indexOf(m_top);
}

} // namespace quillet
