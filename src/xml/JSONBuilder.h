#pragma once

#include "xml/TextCache.h"
#include "xml/Value.h"

#include <QByteArray>

#include <vector>

namespace quillet {

/// Makes a value from what a parser of JSON meets. Objects with the same members in the same order,
/// one after another at the same depth, share their table of keys. Lives for one parse.
class JSONBuilder
{
public:
    /// Opens an object or array; false when that is nested too deep.
    [[nodiscard]] bool open();
    void key(QByteArrayView utf8);
    /// The same of a key as JSON has it, which stands there up to a quotation mark, if the last
    /// object had it here, too. Never the first one of an object. False tells nothing.
    [[nodiscard]] bool takeSameKey(const char *text, const char *end);
    void add(Value value);
    /// Of a truth value or a number: the same, but quick.
    template<typename Scalar>
    void addScalar(Scalar scalar)
    {
        if (m_depth == 0)
            m_root = Value(scalar);
        else
            innermost().values.emplace_back(scalar);
    }
    void addText(QByteArrayView utf8) { add(m_texts.text(utf8)); }
    void addUnsigned(quint64 number);
    /// The text is the number's in the JSON.
    void addDouble(double number, QByteArrayView text);
    /// A zero with a sign, which integers have none for.
    void addNegativeZero();
    void closeObject();
    void closeArray();

    [[nodiscard]] Value takeValue() { return std::move(m_root); }
    /// How many numbers have another text than toJSON gives them, and how many members were named
    /// again.
    [[nodiscard]] qsizetype rewritten() const { return m_rewritten; }

private:
    struct Container
    {
        std::vector<Value> values;
        std::size_t sameNames = 0;     ///< of an object: how many began as those of the last one
        std::vector<QByteArray> names; ///< those that follow
        /// Of the last object closed at this depth; none where it had one twice.
        std::vector<QByteArray> lastNames;
        Dictionary::Keys lastKeys; ///< the same as a table
        bool areLastPlain = false; ///< none of those has a quotation mark or a backslash
    };

    [[nodiscard]] Container &innermost() { return m_stack[m_depth - 1]; }
    Dictionary::Keys keysOf(Container &object);

    std::vector<Container> m_stack; ///< grows only, so that containers keep their memory
    std::size_t m_depth = 0;
    Value m_root;
    TextCache m_texts;
    qsizetype m_rewritten = 0;
};

} // namespace quillet
