#pragma once

#include "xml/Dictionary.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace quillet {

/// A stretch of a text, in bytes.
struct TextSpan
{
    qsizetype start = 0;
    qsizetype end = 0; ///< behind its last byte

    [[nodiscard]] QByteArrayView in(QByteArrayView text) const
    {
        return text.sliced(start, end - start);
    }
};

/// An element and what stands between its tags; an element without content has nothing there.
struct ElementSpan
{
    QByteArray name;
    TextSpan whole;
    TextSpan content;
    bool isClosed = false; ///< false when the text ended or broke off before its end tag
    /// What reading makes of it, if that is asked for and it is closed; empty when it holds
    /// nothing.
    std::optional<Dictionary> node;
};

enum class WithNodes { No, Yes };

/// Where the elements lie that have the given path from the root, e.g. {"TLLDATA", "CHANNEL"}; an
/// empty name stands for any. In their order, up to the first fault of the text, which is UTF-8.
[[nodiscard]] std::vector<ElementSpan> elementSpans(const QByteArray &utf8,
                                                    const std::vector<QByteArray> &path,
                                                    WithNodes withNodes = WithNodes::No);

} // namespace quillet
