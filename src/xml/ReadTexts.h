#pragma once

#include <QByteArray>
#include <QSharedData>
#include <QString>

#include <vector>

namespace quillet {

/// Where a text stands among the bytes it was read from.
class ReadText
{
public:
    ReadText() = default;
    ReadText(quint32 start, quint32 size, bool isEncoded)
        : m_start(start), m_size(size << 1 | (isEncoded ? 1U : 0U))
    {
    }

    [[nodiscard]] qsizetype start() const { return m_start; }
    [[nodiscard]] qsizetype size() const { return m_size >> 1; }
    /// Whether it holds what reading replaces: references, line ends.
    [[nodiscard]] bool isEncoded() const { return (m_size & 1) != 0; }

private:
    quint32 m_start = 0;
    quint32 m_size = 0; ///< twice, and one if it is encoded
};

/// Where an element stands whose texts were noted.
struct ReadElement
{
    quint32 start;
    quint32 size : 31;
    /// It has no attributes, each tag of a child follows a CR LF at once, its end tag too, and no
    /// text is encoded or has blanks around it.
    quint32 isInLines : 1;
};

/// The bytes of a file, which are UTF-8 of up to 2 GB, and where texts stand among them: eight
/// bytes for each. Filled by the one parse that made it and not changed afterwards.
class ReadTexts : public QSharedData
{
public:
    explicit ReadTexts(QByteArray utf8) : m_utf8(std::move(utf8)) {}

    [[nodiscard]] const QByteArray &utf8() const { return m_utf8; }
    [[nodiscard]] std::size_t count() const { return m_texts.size(); }
    [[nodiscard]] ReadText at(std::size_t index) const { return m_texts[index]; }
    /// Takes memory for that many, about as many as there will be.
    void expect(std::size_t count);
    void add(ReadText text) { m_texts.push_back(text); }
    /// Forgets all but the first so many.
    void truncate(std::size_t count) { m_texts.resize(count); }

    /// The bytes as they stand in the file.
    [[nodiscard]] QByteArrayView bytesOf(ReadText text) const
    {
        return {m_utf8.constData() + text.start(), text.size()};
    }
    /// What they tell.
    [[nodiscard]] QString textOf(ReadText text) const;
    /// The same in UTF-8.
    [[nodiscard]] QByteArray utf8Of(ReadText text) const;

private:
    QByteArray m_utf8;
    std::vector<ReadText> m_texts;
};

} // namespace quillet
