#include "document/edit/EditRecord.h"

namespace quillet {

namespace {

/// Of a text or a number, as far as it is the record's own.
std::size_t byteCountOf(const std::optional<Value> &content)
{
    const QString *text = content ? content->string() : nullptr;
    return text ? static_cast<std::size_t>(text->capacity()) * sizeof(QChar) : 0;
}

template<typename Fields>
std::size_t byteCountOf(const Fields &fields)
{
    std::size_t bytes = fields.capacity() * sizeof(typename Fields::value_type);
    for (const auto &field : fields)
        bytes += byteCountOf(field.content);
    return bytes;
}

} // namespace

void EditRecord::keepNumberFields(const StationPtr &station)
{
    if (station->hasPlainNumber())
        return;
    for (const QString &key : station->numberKeys())
        m_numberFields.push_back({station, key, station->field(key)});
}

void EditRecord::setNumber(const StationList &list, std::size_t place, qint64 number)
{
    const StationPtr &station = list[place];
    const qint64 before = station->progNum();
    keepNumberFields(station);
    station->setProgramNum(number);
    if (!m_numbers.empty()) {
        Numbers &last = m_numbers.back();
        const auto count = static_cast<qint64>(last.count);
        if (last.place + last.count == place && last.before + count == before &&
            last.after + count == number) {
            ++last.count;
            return;
        }
    }
    m_numbers.push_back({place, 1, before, number});
}

void EditRecord::giveNumbersOfPlaces(const StationList &list, const std::vector<qint64> &numbers)
{
    m_numbersStay = true;
    const ListStretch stretch = m_order.after();
    for (std::size_t place = stretch.first; place < stretch.end; ++place) {
        if (list[place]->progNum() != numbers[place - stretch.first])
            keepNumberFields(list[place]);
    }
    giveToPlaces(list, numbers);
}

void EditRecord::giveToPlaces(const StationList &list, const std::vector<qint64> &numbers)
{
    std::size_t place = m_order.before().first;
    for (const qint64 number : numbers) {
        if (list[place]->progNum() != number)
            list[place]->setProgramNum(number);
        ++place;
    }
}

std::vector<qint64> EditRecord::numbersOfPlaces(const StationList &list) const
{
    std::vector<qint64> numbers;
    if (!m_numbersStay)
        return numbers;
    const ListStretch stretch = m_order.after(); // as long as before
    numbers.reserve(stretch.end - stretch.first);
    for (std::size_t place = stretch.first; place < stretch.end; ++place)
        numbers.push_back(list[place]->progNum());
    return numbers;
}

bool EditRecord::isEmpty() const
{
    return m_order.isEmpty() && m_numbers.empty() && m_fields.empty() && m_contents.empty();
}

/// Exactly backwards, for a station may stand in the list twice.
void EditRecord::undo(StationList &list)
{
    for (auto run = m_numbers.rbegin(); run != m_numbers.rend(); ++run) {
        for (std::size_t i = run->count; i-- > 0;)
            list[run->place + i]->setProgramNum(run->before + static_cast<qint64>(i));
    }
    const std::vector<qint64> numbers = numbersOfPlaces(list);
    if (!m_order.isEmpty())
        m_order.undo(list);
    giveToPlaces(list, numbers);
    for (auto field = m_numberFields.rbegin(); field != m_numberFields.rend(); ++field)
        field->station->setField(field->key, field->content);
    swapFields();
    swapContents();
}

void EditRecord::redo(StationList &list)
{
    const std::vector<qint64> numbers = numbersOfPlaces(list);
    if (!m_order.isEmpty())
        m_order.redo(list);
    giveToPlaces(list, numbers);
    for (const Numbers &run : m_numbers) {
        for (std::size_t i = 0; i < run.count; ++i)
            list[run.place + i]->setProgramNum(run.after + static_cast<qint64>(i));
    }
    swapFields();
    swapContents();
}

/// Each station has each field once here, so the way through them does not matter.
void EditRecord::swapFields()
{
    for (auto &[station, key, content] : m_fields) {
        std::optional<Value> now = station->field(key);
        station->setField(key, content);
        content = std::move(now);
    }
}

void EditRecord::replaceContent(const StationPtr &station, const StationPtr &other)
{
    station->swapContent(*other);
    m_contents.emplace_back(station, other);
}

/// Each station is here once.
void EditRecord::swapContents()
{
    for (const auto &[station, other] : m_contents)
        station->swapContent(*other);
}

ListStretch EditRecord::places() const
{
    ListStretch places = m_order.after();
    places.include(m_order.before());
    for (const Numbers &run : m_numbers)
        places.include({run.place, run.place + run.count});
    return places;
}

std::size_t EditRecord::byteCount() const
{
    std::size_t bytes = m_order.byteCount() + m_numbers.capacity() * sizeof(Numbers) +
                        byteCountOf(m_numberFields) + byteCountOf(m_fields) +
                        m_contents.capacity() * sizeof(m_contents.front());
    for (const auto &[station, other] : m_contents) {
        bytes += sizeof(LGStation);
        for (const auto &[key, value] : other->entry())
            bytes += sizeof(Value) + byteCountOf(std::optional(value));
    }
    return bytes;
}

} // namespace quillet
