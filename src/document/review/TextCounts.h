#pragma once

#include "xml/Value.h"

#include <QByteArray>

#include <vector>

/// What can be told of a text that cannot be parsed to its end.
namespace quillet {

class FileText;

/// How many stations begin in the text. Elements that hold text alone, or nothing, do not count.
[[nodiscard]] qsizetype stationsBegunIn(QByteArrayView utf8);

/// How many station sections begin in the text.
[[nodiscard]] qsizetype sectionsBegunIn(QByteArrayView utf8);

/// The first so many stations at or behind a place of the text; one that the text breaks off in
/// with what there is of it.
[[nodiscard]] std::vector<Dictionary> stationsBehind(const QByteArray &utf8, qsizetype from,
                                                     qsizetype most);

} // namespace quillet
