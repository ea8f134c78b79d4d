#include "xml/Array.h"

#include "xml/Value.h"

#include <QSharedData>

#include <algorithm>
#include <utility>

namespace quillet {

struct Array::Data : QSharedData
{
    std::vector<Value> values;
};

Array::Array() = default;
Array::Array(const Array &other) = default;
Array::Array(Array &&other) noexcept = default;
Array &Array::operator=(const Array &other) = default;
Array &Array::operator=(Array &&other) noexcept = default;
Array::~Array() = default;

Array::Array(std::initializer_list<Value> values)
{
    detached().values = values;
}

Array::Array(std::vector<Value> values)
{
    detached().values = std::move(values);
}

Array::Data &Array::detached()
{
    if (d)
        d.detach();
    else
        d.reset(new Data);
    return *d;
}

qsizetype Array::count() const
{
    return d ? static_cast<qsizetype>(d->values.size()) : 0;
}

const Value &Array::at(qsizetype index) const
{
    return d->values[static_cast<std::size_t>(index)];
}

void Array::append(Value value)
{
    detached().values.push_back(std::move(value));
}

void Array::replaceLast(Value value)
{
    detached().values.back() = std::move(value);
}

void Array::removeLast()
{
    detached().values.pop_back();
}

const Value *Array::begin() const
{
    return d ? d->values.data() : nullptr;
}

const Value *Array::end() const
{
    return begin() + count();
}

bool Array::operator==(const Array &other) const
{
    return d == other.d || std::equal(begin(), end(), other.begin(), other.end());
}

} // namespace quillet
