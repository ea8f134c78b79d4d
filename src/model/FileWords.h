#pragma once

#include <QByteArrayView>
#include <QLatin1String>
#include <QStringView>

#include <array>
#include <cstddef>

/// The words of a channel list's file, spelt once. The tree asks for them in UTF-16, the text in
/// bytes.
namespace quillet {

/// A word of ASCII in both forms.
template<std::size_t Length>
class FileWord
{
public:
    constexpr explicit(false) FileWord(const char (&word)[Length + 1])
    {
        for (std::size_t i = 0; i < Length; ++i)
            set(i, word[i]);
    }
    /// Several words one after another.
    template<std::size_t... Lengths>
    constexpr explicit FileWord(const FileWord<Lengths> &...parts)
    {
        std::size_t next = 0;
        const auto append = [this, &next](const auto &part) {
            for (std::size_t i = 0; i < part.length(); ++i)
                set(next++, part.at(i));
        };
        (append(parts), ...);
    }

    [[nodiscard]] constexpr std::size_t length() const { return Length; }
    [[nodiscard]] constexpr char at(std::size_t i) const { return m_ascii[i]; }
    constexpr operator QStringView() const // NOLINT(google-explicit-constructor)
    {
        return {m_utf16.data(), static_cast<qsizetype>(Length)};
    }
    [[nodiscard]] constexpr QByteArrayView bytes() const
    {
        return {m_ascii.data(), static_cast<qsizetype>(Length)};
    }
    [[nodiscard]] constexpr QLatin1String latin1() const
    {
        return QLatin1String(m_ascii.data(), static_cast<qsizetype>(Length));
    }
    [[nodiscard]] QString toString() const { return latin1(); }

private:
    constexpr void set(std::size_t i, char c)
    {
        m_ascii[i] = c;
        m_utf16[i] = static_cast<char16_t>(c);
    }

    // With a terminator, which some of Qt's views look for.
    std::array<char, Length + 1> m_ascii{};
    std::array<char16_t, Length + 1> m_utf16{};
};

template<std::size_t Size>
FileWord(const char (&)[Size]) -> FileWord<Size - 1>;
template<std::size_t... Lengths>
FileWord(const FileWord<Lengths> &...) -> FileWord<(Lengths + ...)>;

namespace fileword {

inline constexpr FileWord root("TLLDATA");
inline constexpr FileWord modelInfo("ModelInfo");
inline constexpr FileWord modelName("ModelName");
inline constexpr FileWord channel("CHANNEL");
inline constexpr FileWord atv("ATV"); ///< the section of the analogue stations
inline constexpr FileWord dtv("DTV"); ///< the section of the digital stations
inline constexpr FileWord item("ITEM");
inline constexpr FileWord legacyBroadcast("legacybroadcast");
inline constexpr FileWord channelList("channelList"); ///< a member of the JSON text
inline constexpr FileWord majorNumber("majorNumber");
inline constexpr FileWord satelliteList("satelliteList"); ///< another
inline constexpr FileWord satelliteId("satelliteId");
inline constexpr FileWord satelliteName("satelliteName");

/// In the order in which they are read and written.
inline constexpr std::array<FileWord<3>, 2> sections{atv, dtv};

/// The start of an element's start tag, which attributes or ">" may follow.
template<std::size_t Length>
constexpr auto tagStart(const FileWord<Length> &word)
{
    return FileWord(FileWord("<"), word);
}
template<std::size_t Length>
constexpr auto startTag(const FileWord<Length> &word)
{
    return FileWord(FileWord("<"), word, FileWord(">"));
}
template<std::size_t Length>
constexpr auto endTag(const FileWord<Length> &word)
{
    return FileWord(FileWord("</"), word, FileWord(">"));
}

} // namespace fileword

} // namespace quillet
