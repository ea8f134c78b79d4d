#pragma once

#include <QHash>
#include <QSharedData>
#include <QString>

#include <vector>

namespace quillet {

/// The keys of a dictionary in order, each once. The stations of a list have the same fields in the
/// same order, so their dictionaries share one table and hold only their values.
class KeyTable : public QSharedData
{
public:
    static constexpr qsizetype none = -1;

    [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(m_keys.size()); }
    [[nodiscard]] const QString &at(qsizetype position) const
    {
        return m_keys[static_cast<std::size_t>(position)];
    }
    /// The position of a key; none when it is absent.
    [[nodiscard]] qsizetype indexOf(QStringView key) const;

    [[nodiscard]] bool hasSameOrder(const KeyTable &other) const { return m_keys == other.m_keys; }

    /// Adds a key that must be absent.
    void append(const QString &key);
    void removeAt(qsizetype position);

private:
    void index(std::size_t position);

    std::vector<QString> m_keys;
    std::vector<quint32> m_marks;          ///< of the keys: equal ones have equal marks
    QHash<QStringView, qsizetype> m_index; ///< filled for long tables only; views of m_keys' text
};

} // namespace quillet
