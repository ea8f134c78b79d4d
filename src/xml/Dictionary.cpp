#include "xml/Dictionary.h"

#include "xml/Value.h"

#include <algorithm>
#include <memory>

namespace quillet {

/// The content. One that was changed while others shared it holds the changed values alone, over
/// the content that they still share: of a station's thirty fields an edit changes one.
struct Dictionary::Data : QSharedData
{
    struct Changes
    {
        QExplicitlySharedDataPointer<Data> base; ///< has no changes itself
        std::vector<qsizetype> positions;        ///< which values are changed, in no order
    };
    static constexpr std::size_t mostChanges = 4;

    Keys keys{new KeyTable};
    std::vector<Value> values; ///< all, or those that are changed
    std::unique_ptr<Changes> changes;

    Data() = default;
    Data(Keys sharedKeys, std::vector<Value> ownValues)
        : keys(std::move(sharedKeys)), values(std::move(ownValues))
    {
    }
    Data(const Data &other) : QSharedData(other), keys(other.keys), values(other.values)
    {
        if (other.changes)
            changes = std::make_unique<Changes>(*other.changes);
    }

    [[nodiscard]] const Value &value(qsizetype position) const
    {
        if (!changes)
            return values[static_cast<std::size_t>(position)];
        const auto changed =
            std::find(changes->positions.begin(), changes->positions.end(), position);
        return changed == changes->positions.end()
                   ? changes->base->values[static_cast<std::size_t>(position)]
                   : values[static_cast<std::size_t>(changed - changes->positions.begin())];
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

/// The content with all its values, for no other dictionary.
Dictionary::Data &Dictionary::detached()
{
    if (!d) {
        d.reset(new Data);
    } else if (d->changes) {
        std::vector<Value> values;
        values.reserve(static_cast<std::size_t>(count()));
        for (qsizetype position = 0; position < count(); ++position)
            values.push_back(d->value(position));
        d.reset(new Data(d->keys, std::move(values)));
    } else {
        d.detach();
    }
    return *d;
}

/// The value at a position, for no other dictionary.
Value &Dictionary::detachedValue(qsizetype position)
{
    const bool isShared = d->ref.loadRelaxed() != 1;
    if (!d->changes && !isShared)
        return d->values[static_cast<std::size_t>(position)];
    if (!d->changes) {
        auto changes = std::make_unique<Data::Changes>();
        changes->base = d;
        d.reset(new Data(d->keys, {}));
        d->changes = std::move(changes);
    } else if (isShared) {
        d.detach();
    }
    std::vector<qsizetype> &positions = d->changes->positions;
    const auto changed = std::find(positions.begin(), positions.end(), position);
    if (changed != positions.end())
        return d->values[static_cast<std::size_t>(changed - positions.begin())];
    if (positions.size() == Data::mostChanges)
        return detached().values[static_cast<std::size_t>(position)];
    positions.push_back(position);
    return d->values.emplace_back(d->changes->base->values[static_cast<std::size_t>(position)]);
}

qsizetype Dictionary::count() const
{
    return d ? d->keys->count() : 0;
}

const Value *Dictionary::find(QStringView key) const
{
    const qsizetype position = d ? d->keys->indexOf(key) : KeyTable::none;
    return position == KeyTable::none ? nullptr : &d->value(position);
}

Value *Dictionary::find(QStringView key)
{
    const qsizetype position = d ? d->keys->indexOf(key) : KeyTable::none;
    return position == KeyTable::none ? nullptr : &detachedValue(position);
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

Dictionary::Keys Dictionary::keys() const
{
    return d ? d->keys : Keys();
}

bool Dictionary::hasEqualValues(const Dictionary &other) const
{
    if (d == other.d)
        return true;
    if (count() != other.count())
        return false;
    if (!d->changes && !other.d->changes)
        return d->values == other.d->values;
    for (qsizetype position = 0; position < count(); ++position) {
        if (!(d->value(position) == other.d->value(position)))
            return false;
    }
    return true;
}

bool Dictionary::operator==(const Dictionary &other) const
{
    if (d == other.d)
        return true;
    if (count() != other.count())
        return false;
    for (qsizetype position = 0; position < count(); ++position) {
        const QString &key = d->keys->at(position);
        // Keys mostly stand in the same order.
        const Value *theirs =
            other.d->keys->at(position) == key ? &other.d->value(position) : other.find(key);
        if (!theirs || !(*theirs == d->value(position)))
            return false;
    }
    return true;
}

} // namespace quillet
