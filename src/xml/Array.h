#pragma once

#include <QExplicitlySharedDataPointer>

#include <initializer_list>
#include <vector>

namespace quillet {

class Value;

/// An implicitly shared sequence of values: a copy is free, changing one of two copies leaves the
/// other as it was.
class Array
{
public:
    Array();
    Array(std::initializer_list<Value> values);
    explicit Array(std::vector<Value> values);
    Array(const Array &other);
    Array(Array &&other) noexcept;
    Array &operator=(const Array &other);
    Array &operator=(Array &&other) noexcept;
    ~Array();

    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    [[nodiscard]] qsizetype count() const;
    /// The value at an index from 0 to count() - 1.
    [[nodiscard]] const Value &at(qsizetype index) const;

    void append(Value value);
    /// Replaces the last value; the array must not be empty.
    void replaceLast(Value value);
    /// Removes the last value; the array must not be empty.
    void removeLast();

    [[nodiscard]] const Value *begin() const;
    [[nodiscard]] const Value *end() const;

    [[nodiscard]] bool operator==(const Array &other) const;

private:
    struct Data;
    Data &detached();

    QExplicitlySharedDataPointer<Data> d;
};

} // namespace quillet
