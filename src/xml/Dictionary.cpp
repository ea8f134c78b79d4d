#include "xml/Dictionary.h"

#include "xml/Value.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <utility>
#include <variant>

namespace quillet {

/// The content. One that was changed while others shared it, or after it was noted, holds the
/// changed values alone, over the content before: of a station's thirty fields an edit changes one.
struct Dictionary::Data : QSharedData
{
    /// Of texts that were noted the values, once somebody has asked for one.
    struct Noted
    {
        Noted() = default;
        ~Noted() { delete made.load(std::memory_order_relaxed); }
        Q_DISABLE_COPY_MOVE(Noted)

        mutable std::atomic<const std::vector<Value> *> made = nullptr;
    };
    struct Changes
    {
        QExplicitlySharedDataPointer<Data> base; ///< has no changes itself
        std::array<quint32, 4> positions{};      ///< where those values belong
    };

    quint32 first = 0; ///< where its noted texts begin among those of the file
    Keys keys{new KeyTable};
    std::vector<Value> values; ///< all that were not noted, or those that are changed
    ElementText text{};        ///< of the element whose bytes tell all; has no texts without one
    std::variant<std::monostate, Noted, Changes> origin;

    Data() = default;
    Data(Keys sharedKeys, std::vector<Value> ownValues)
        : keys(std::move(sharedKeys)), values(std::move(ownValues))
    {
    }
    Data(Keys sharedKeys, NotedTexts texts)
        : first(texts.first), keys(std::move(sharedKeys)), text(std::move(texts.whole)),
          origin(std::in_place_type<Noted>)
    {
    }
    explicit Data(QExplicitlySharedDataPointer<Data> base)
        : keys(base->keys), origin(Changes{std::move(base)})
    {
    }
    /// Of one that will be changed.
    Data(const Data &other)
        : QSharedData(other), keys(other.keys),
          values(other.noted() ? other.notedValues() : other.values)
    {
        if (const Changes *changes = other.changes())
            origin = *changes;
    }

    /// Whether its values are all that there is.
    [[nodiscard]] bool isMade() const { return std::holds_alternative<std::monostate>(origin); }
    /// The texts that are its values, or the changes that its values are; null when neither.
    [[nodiscard]] const Noted *noted() const { return std::get_if<Noted>(&origin); }
    [[nodiscard]] const Changes *changes() const { return std::get_if<Changes>(&origin); }
    [[nodiscard]] Changes *changes() { return std::get_if<Changes>(&origin); }

    [[nodiscard]] ReadText notedAt(qsizetype position) const
    {
        return text.texts->at(first + static_cast<std::size_t>(position));
    }
    [[nodiscard]] QString notedText(qsizetype position) const
    {
        return text.texts->textOf(notedAt(position));
    }
    [[nodiscard]] const std::vector<Value> &notedValues() const
    {
        auto &made = noted()->made;
        if (const auto *known = made.load(std::memory_order_acquire))
            return *known;
        auto mine = std::make_unique<std::vector<Value>>();
        mine->reserve(static_cast<std::size_t>(keys->count()));
        for (qsizetype position = 0; position < keys->count(); ++position)
            mine->emplace_back(notedText(position));
        const std::vector<Value> *others = nullptr; // of a thread that was quicker
        return made.compare_exchange_strong(others, mine.get(), std::memory_order_acq_rel)
                   ? *mine.release()
                   : *others;
    }

    [[nodiscard]] const Value &value(qsizetype position) const
    {
        const auto place = static_cast<std::size_t>(position);
        if (noted())
            return notedValues()[place];
        if (!changes())
            return values[place];
        const std::size_t change = changeAt(position);
        return change < values.size() ? values[change] : changes()->base->value(position);
    }

    /// Which of the changed values belongs there; as many as there are when it is that of the base.
    [[nodiscard]] std::size_t changeAt(qsizetype position) const
    {
        const auto &positions = changes()->positions;
        const auto end = positions.begin() + static_cast<std::ptrdiff_t>(values.size());
        return static_cast<std::size_t>(
            std::find(positions.begin(), end, static_cast<quint32>(position)) - positions.begin());
    }

    /// What was noted and perhaps changed since; null when there is no such thing.
    [[nodiscard]] const Data *lastNoted() const
    {
        const Data *last = changes() ? changes()->base.data() : this;
        return last->noted() ? last : nullptr;
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

Dictionary::Dictionary(Keys keys, NotedTexts noted) : d(new Data(std::move(keys), std::move(noted)))
{
}

/// The content with all its values, for no other dictionary.
Dictionary::Data &Dictionary::detached()
{
    if (!d) {
        d.reset(new Data);
    } else if (d->changes()) {
        std::vector<Value> values;
        values.reserve(static_cast<std::size_t>(count()));
        for (qsizetype position = 0; position < count(); ++position)
            values.push_back(d->value(position));
        d.reset(new Data(d->keys, std::move(values)));
    } else if (d->noted()) {
        d.reset(new Data(*d));
    } else {
        d.detach();
        d->text = {};
    }
    return *d;
}

/// The value at a position, for no other dictionary. One that is going to be replaced need not be
/// what it was.
Value &Dictionary::detachedValue(qsizetype position, Content content)
{
    const bool isShared = d->ref.loadRelaxed() != 1 || d->noted();
    if (!d->changes() && !isShared) {
        d->text = {};
        return d->values[static_cast<std::size_t>(position)];
    }
    if (!d->changes())
        d.reset(new Data(d));
    else if (isShared)
        d.detach();
    const std::size_t change = d->changeAt(position);
    if (change < d->values.size())
        return d->values[change];
    Data::Changes &changes = *d->changes();
    if (change == changes.positions.size())
        return detached().values[static_cast<std::size_t>(position)];
    changes.positions[change] = static_cast<quint32>(position);
    if (content == Content::Replaced)
        return d->values.emplace_back();
    const Data &base = *changes.base;
    return d->values.emplace_back(base.noted() ? Value(base.notedText(position))
                                               : base.value(position));
}

qsizetype Dictionary::count() const
{
    return d ? d->keys->count() : 0;
}

qsizetype Dictionary::indexOf(QStringView key) const
{
    return d ? d->keys->indexOf(key) : KeyTable::none;
}

const Value *Dictionary::find(QStringView key) const
{
    const qsizetype position = indexOf(key);
    return position == KeyTable::none ? nullptr : &d->value(position);
}

Value *Dictionary::find(QStringView key)
{
    const qsizetype position = indexOf(key);
    return position == KeyTable::none ? nullptr : &detachedValue(position, Content::Kept);
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
    const qsizetype position = indexOf(key);
    if (position != KeyTable::none) {
        detachedValue(position, Content::Replaced) = std::move(value);
        return;
    }
    Data &data = detached();
    data.keys.detach();
    data.keys->append(key);
    data.values.push_back(std::move(value));
}

void Dictionary::remove(QStringView key)
{
    const qsizetype position = indexOf(key);
    if (position == KeyTable::none)
        return;
    Data &data = detached();
    data.keys.detach();
    data.keys->removeAt(position);
    data.values.erase(data.values.begin() + position);
}

const QString &Dictionary::keyAt(qsizetype position) const
{
    return d->keys->at(position);
}

DictionaryEntry Dictionary::at(qsizetype position) const
{
    return {d->keys->at(position), d->value(position)};
}

Dictionary::Keys Dictionary::keys() const
{
    return d ? d->keys : Keys();
}

/// What was noted, if nobody has changed it at that position; null when there is no such thing.
const Dictionary::Data *Dictionary::notedAt(qsizetype position) const
{
    if (d->noted())
        return d.data();
    const Data *noted = d->lastNoted();
    return noted && d->changeAt(position) == d->values.size() ? noted : nullptr;
}

std::optional<QString> Dictionary::text(QStringView key) const
{
    const qsizetype position = indexOf(key);
    return position == KeyTable::none ? std::nullopt : text(position);
}

std::optional<QString> Dictionary::text(qsizetype position) const
{
    if (const Data *noted = notedAt(position)) {
        const auto *made = noted->noted()->made.load(std::memory_order_acquire);
        return made ? *(*made)[static_cast<std::size_t>(position)].string()
                    : noted->notedText(position);
    }
    const QString *text = d->value(position).string();
    return text ? std::optional(*text) : std::nullopt;
}

std::optional<QByteArray> Dictionary::utf8(qsizetype position) const
{
    if (const Data *noted = notedAt(position))
        return noted->text.texts->utf8Of(noted->notedAt(position));
    const QString *text = d->value(position).string();
    return text ? std::optional(text->toUtf8()) : std::nullopt;
}

std::optional<QByteArrayView> Dictionary::bytesRead(qsizetype position) const
{
    const Data *noted = notedAt(position);
    if (!noted)
        return {};
    const ReadText read = noted->notedAt(position);
    return read.isEncoded() ? std::nullopt : std::optional(noted->text.texts->bytesOf(read));
}

const ElementText *Dictionary::origin() const
{
    const Data *noted = d ? d->lastNoted() : nullptr;
    return noted ? &noted->text : nullptr;
}

bool Dictionary::isAsNoted() const
{
    return d && d->noted();
}

void Dictionary::rememberText(ElementText text)
{
    if (d && d->isMade()) {
        d.detach();
        d->text = std::move(text);
    }
}

/// Whether both are elements that are the same byte by byte.
bool Dictionary::areOneText(const Dictionary &other) const
{
    return d && other.d && d->text.texts && other.d->text.texts &&
           d->text.bytes() == other.d->text.bytes();
}

bool Dictionary::hasEqualValue(qsizetype position, const Dictionary &other,
                               qsizetype otherPosition) const
{
    const std::optional<QByteArrayView> mine = bytesRead(position);
    const std::optional<QByteArrayView> theirs = other.bytesRead(otherPosition);
    if (mine && theirs)
        return *mine == *theirs;
    if (mine || theirs) { // a text, so that of the other one need not be made to stay
        const std::optional<QString> ofOther = other.text(otherPosition);
        return ofOther && text(position) == ofOther;
    }
    return d->value(position) == other.d->value(otherPosition);
}

bool Dictionary::hasEqualValues(const Dictionary &other) const
{
    if (count() != other.count())
        return false;
    if (d == other.d || isEmpty())
        return true;
    if (areOneText(other))
        return true;
    if (d->isMade() && other.d->isMade())
        return d->values == other.d->values;
    for (qsizetype position = 0; position < count(); ++position) {
        if (!hasEqualValue(position, other, position))
            return false;
    }
    return true;
}

bool Dictionary::operator==(const Dictionary &other) const
{
    if (d == other.d || areOneText(other))
        return true;
    if (count() != other.count())
        return false;
    for (qsizetype position = 0; position < count(); ++position) {
        const QString &key = d->keys->at(position);
        // Keys mostly stand in the same order.
        const qsizetype theirs = other.d->keys->at(position) == key ? position : other.indexOf(key);
        if (theirs == KeyTable::none || !hasEqualValue(position, other, theirs))
            return false;
    }
    return true;
}

} // namespace quillet
