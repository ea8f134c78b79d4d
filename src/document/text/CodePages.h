#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

/// Texts of one byte a letter, as spreadsheets write them that do not write Unicode.
namespace quillet {

enum class CodePage {
    Western,         ///< Windows-1252
    CentralEuropean, ///< Windows-1250
    Turkish,         ///< Windows-1254
    MacRoman,
};
inline constexpr CodePage codePages[]{CodePage::Western, CodePage::CentralEuropean,
                                      CodePage::Turkish, CodePage::MacRoman};

[[nodiscard]] QString fromCodePage(QByteArrayView bytes, CodePage page);
/// None for a letter that the page does not have.
[[nodiscard]] std::optional<char> inCodePage(char16_t letter, CodePage page);

} // namespace quillet
