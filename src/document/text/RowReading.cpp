#include "document/text/RowReading.h"

#include "document/text/CellValues.h"

namespace quillet {

RowReading::RowReading(std::size_t place)
    : m_station(std::make_shared<LGStation>(Dictionary(), static_cast<qint64>(place)))
{
}

void RowReading::setText(const QString &field, const QString &text)
{
    if (!text.isEmpty())
        m_station->setField(field, Value(text));
}

void RowReading::takeKey(const StationKey &key)
{
    const StationKeys &keys = m_station->keys();
    setText(keys.keyOriginalNetwork_id, key.network);
    setText(keys.keyTransport_id, key.transport);
    setText(keys.keyService_id, key.service);
    setText(keys.keyFrequency, key.frequency);
    m_key = key;
}

/// 0 is what a station without a number has: it tells nothing.
bool RowReading::takeNumber(const QString &text)
{
    const std::optional<qint64> number = wholeNumberOf(text);
    if (!number || !LGStation::canCarry(*number))
        return false;
    if (*number == 0)
        return true;
    m_station->setProgramNum(*number);
    m_told |= StationDifference::Number;
    return true;
}

bool RowReading::takeMark(RowField field, const QString &text)
{
    const std::optional<bool> mark = markOf(text);
    if (!mark)
        return false;
    if (field == RowField::Skipped)
        m_station->setSkipped(*mark);
    else
        m_station->setBlocked(*mark);
    m_told |= field == RowField::Skipped ? StationDifference::Skipped : StationDifference::Locked;
    return true;
}

/// As the name that was read: it is text, and nothing is to be decoded.
void RowReading::takeName(const QString &text)
{
    setText(m_station->keys().keyStationName, text);
    m_station->setName(text);
    m_told |= StationDifference::Name;
}

/// Spreadsheets may group the digits of one that they took for a number.
void RowReading::takeIdentifier(const QString &field, const QString &text)
{
    if (m_key && m_station->field(field))
        return;
    const std::optional<qint64> number = wholeNumberOf(text);
    setText(field, number ? QString::number(*number) : text.trimmed());
}

bool RowReading::take(RowField field, const QString &text, TextFault::Kind &kind)
{
    const StationKeys &keys = m_station->keys();
    switch (field) {
    case RowField::Number:
        kind = TextFault::Kind::BadNumber;
        return takeNumber(text);
    case RowField::Skipped:
    case RowField::Locked:
        kind = TextFault::Kind::BadMark;
        return takeMark(field, text);
    case RowField::Name:
        if (!text.contains(
                QChar::ReplacementCharacter)) // what was damaged on its way tells nothing
            takeName(text);
        return true;
    case RowField::NetworkId:
        takeIdentifier(keys.keyNetwork_id, text);
        return true;
    case RowField::TransportStreamId:
        takeIdentifier(keys.keyTransport_id, text);
        return true;
    case RowField::ServiceId:
        takeIdentifier(keys.keyService_id, text);
        return true;
    case RowField::Frequency:
        if (const std::optional<qint64> frequency = frequencyOf(text))
            takeIdentifier(keys.keyFrequency, QString::number(*frequency));
        return true;
    case RowField::Key:
        if (const std::optional<StationKey> key = StationKey::fromText(text))
            takeKey(*key);
        return true;
    case RowField::Other:
        return true;
    }
    return true;
}

void RowReading::addTo(StationRows &rows, qsizetype line) const
{
    rows.stations.push_back(m_station);
    rows.told.push_back(m_told);
    rows.lines.push_back(line);
    rows.keys.push_back(m_key ? std::optional(m_key->text()) : std::nullopt);
}

} // namespace quillet
