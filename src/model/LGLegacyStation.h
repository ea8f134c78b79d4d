#pragma once

#include "model/LGStation.h"

#include <QStringList>

namespace quillet {

/// A station of the file variant that keeps its stations as JSON: other field names, real numbers
/// and booleans, source names instead of numbers, and no hexadecimal or byte-stored name.
class LGLegacyStation : public LGStation
{
public:
    /// The fields that mark a number as given by the user.
    [[nodiscard]] static QStringList numberMarks();

    /// `origIndex` is the station's index in the channel list sorted by number.
    LGLegacyStation(Dictionary entry, qint64 origIndex);

    /// The name, or "??" when there is none that is text.
    [[nodiscard]] QString stationName() const override;
    [[nodiscard]] int mappedSourceIndex() const override;
    /// Stores the number as a number, without a radio mark, and marks it as given by the user.
    void setProgramNum(qint64 number) override;
    [[nodiscard]] QStringList numberKeys() const override;

    /// The station as compact JSON; none when its entry cannot be expressed in it.
    [[nodiscard]] std::optional<QString> getJSONItem() const;

protected:
    /// Only real booleans count.
    [[nodiscard]] std::optional<bool> getBoolValue(const QString &key) const override;
    void setBoolValue(bool value, const QString &key) override;
    [[nodiscard]] bool readsPlainNumber() const override;
    [[nodiscard]] QString readName() const override;
    [[nodiscard]] QLatin1String className() const override;
};

} // namespace quillet
