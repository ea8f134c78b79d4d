#pragma once

#include <QByteArrayView>

#include <array>
#include <optional>
#include <vector>

namespace quillet {

/// An element of which the end was not read yet.
struct OpenElement
{
    QByteArrayView name;
    qsizetype start;   ///< of its tag
    qsizetype content; ///< the end of its tag
    qsizetype firstChild = -1;
};

/// The elements that are open at a place of a channel list, the root first, and what is known of
/// the station among them.
class OpenElements
{
public:
    [[nodiscard]] bool isEmpty() const { return m_open.empty(); }
    [[nodiscard]] std::size_t count() const { return m_open.size(); }
    [[nodiscard]] const OpenElement &operator[](std::size_t index) const { return m_open[index]; }
    [[nodiscard]] OpenElement &last() { return m_open.back(); }
    [[nodiscard]] const OpenElement &last() const { return m_open.back(); }
    /// The innermost element of that name.
    [[nodiscard]] std::optional<std::size_t> find(QByteArrayView name) const;
    /// The outermost section of the list.
    [[nodiscard]] std::optional<std::size_t> section() const;
    [[nodiscard]] std::optional<std::size_t> station() const { return m_station; }

    void push(const OpenElement &element);
    /// Takes out the last one; whatever it held counts.
    void pop();
    /// Takes out the last one as if it had never been one.
    void discard();

    /// Whether an element holds others and no text.
    [[nodiscard]] bool isContainer(std::size_t index) const;
    /// Whether it lies in a station.
    [[nodiscard]] bool isField(std::size_t index) const { return m_station && index > *m_station; }
    /// Whether the last one holds text and, so far, nothing else.
    [[nodiscard]] bool isLastALeaf() const
    {
        return !isEmpty() && !isContainer(count() - 1) && last().firstChild < 0;
    }
    /// Whether the open station has the fields by which it can be filed in its section.
    [[nodiscard]] bool canStationBeFiled() const;

private:
    std::vector<OpenElement> m_open;
    std::optional<std::size_t> m_station; ///< which one is a station
    bool m_hasField = false;              ///< the station
    std::size_t m_filingFields = 0;       ///< how many of them the station has
};

/// Whether a tag of that name holds the stations of a kind.
[[nodiscard]] bool isSectionTag(QByteArrayView name);

} // namespace quillet
