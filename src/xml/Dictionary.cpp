#include "xml/Dictionary.h"

#include "xml/Value.h"

namespace quillet {

struct Dictionary::Data : QSharedData
{
    Keys keys{new KeyTable};
    std::vector<Value> values;

    Data() = default;
    Data(Keys sharedKeys, std::vector<Value> ownValues)
        : keys(std::move(sharedKeys)), values(std::move(ownValues))
    {
    }

    [[nodiscard]] Value &value(qsizetype position)
    {
        return values[static_cast<std::size_t>(position)];
    }
};

Dictionary::Dictionary() = default;
Dictionary::Dictionary(const Dictionary &other) = default;
Dictionary::Dictionary(Dictionary &&other) noexcept = default;
Dictionary &Dictionary::operator=(const Dictionary &other) = default;
Dictionary &Dictionary::operator=(Dictionary &&other) noexcept = default;
Dictionary::~Dictionary() = default;

Dictionary::Dictionary(std::initializer_list<std::pair<QString, Value>> entries)
{
    for (const auto &[key, value] : entries)
        insert(key, value);
}

Dictionary::Dictionary(Keys keys, std::vector<Value> values)
    : d(new Data(std::move(keys), std::move(values)))
{
    Q_ASSERT(d->keys->count() == static_cast<qsizetype>(d->values.size()));
}

Dictionary::Data &Dictionary::detached()
{
    if (d)
        d.detach();
    else
        d.reset(new Data);
    return *d;
}

qsizetype Dictionary::count() const
{
    return d ? static_cast<qsizetype>(d->values.size()) : 0;
}

const Value *Dictionary::find(QStringView key) const
{
    const qsizetype position = d ? d->keys->indexOf(key) : KeyTable::none;
    return position == KeyTable::none ? nullptr : &d->value(position);
}

Value *Dictionary::find(QStringView key)
{
    const qsizetype position = d ? d->keys->indexOf(key) : KeyTable::none;
    return position == KeyTable::none ? nullptr : &detached().value(position);
}

const QString *Dictionary::string(QStringView key) const
{
    const Value *value = find(key);
    return value ? value->string() : nullptr;
}

const Dictionary *Dictionary::dictionary(QStringView key) const
{
    const Value *value = find(key);
    return value ? value->dictionary() : nullptr;
}

void Dictionary::insert(const QString &key, Value value)
{
    if (Value *present = find(key)) {
        *present = std::move(value);
        return;
    }
    Data &data = detached();
    data.keys.detach();
    data.keys->append(key);
    data.values.push_back(std::move(value));
}

void Dictionary::remove(QStringView key)
{
    const qsizetype position = d ? d->keys->indexOf(key) : KeyTable::none;
    if (position == KeyTable::none)
        return;
    Data &data = detached();
    data.keys.detach();
    data.keys->removeAt(position);
    data.values.erase(data.values.begin() + position);
}

DictionaryEntry Dictionary::at(qsizetype position) const
{
    return {d->keys->at(position), d->value(position)};
}

bool Dictionary::operator==(const Dictionary &other) const
{
    if (d == other.d)
        return true;
    if (count() != other.count())
        return false;
    for (const auto &[key, value] : *this) {
        const Value *theirs = other.find(key);
        if (!theirs || !(*theirs == value))
            return false;
    }
    return true;
}

} // namespace quillet
