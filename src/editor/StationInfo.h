#pragma once

#include "model/LGStation.h"

#include <QStringList>

namespace quillet {

/// Every field of one station as name and text, as they were when the station was set.
class StationInfo
{
public:
    void setStation(const LGStation &station);

    /// The name the station is shown by.
    [[nodiscard]] const QString &title() const { return m_title; }
    /// The names of the fields, capital letters before small ones.
    [[nodiscard]] const QStringList &fields() const { return m_fields; }
    /// The text of the field at a position of fields().
    [[nodiscard]] QString content(qsizetype position) const;
    /// The same, cut where it is too long to be laid out in a moment.
    [[nodiscard]] QString shownContent(qsizetype position) const;

private:
    QString m_title;
    Dictionary m_entry;
    QStringList m_fields;
};

} // namespace quillet
