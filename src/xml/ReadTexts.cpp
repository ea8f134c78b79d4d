#include "xml/ReadTexts.h"

#include "support/MemoryPages.h"
#include "support/TextConversion.h"
#include "xml/PlainText.h"

namespace quillet {

void ReadTexts::expect(std::size_t count)
{
    m_texts.reserve(count);
    takePages(m_texts.data(), count * sizeof(ReadText));
}

QString ReadTexts::textOf(ReadText text) const
{
    return text.isEncoded() ? textFromUtf8(utf8Of(text)) : textFromUtf8(bytesOf(text));
}

QByteArray ReadTexts::utf8Of(ReadText text) const
{
    const QByteArrayView bytes = bytesOf(text);
    return text.isEncoded() ? decodedPlainText(bytes) : bytes.toByteArray();
}

} // namespace quillet
