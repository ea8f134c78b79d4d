#include "document/FileLayout.h"

namespace quillet {

namespace {

/// How far the first ITEM may start from the start of its section's tag, in characters.
constexpr qsizetype longestDistance = 9;

} // namespace

bool FileLayout::locateATV(const QString &text)
{
    return locate(text, u"<ATV>", u"</ATV>", m_headerLenATV);
}

bool FileLayout::locateDTV(const QString &text)
{
    return locate(text, u"<DTV>", u"</DTV>", m_headerLenDTV);
}

void FileLayout::locateLegacy(const QString &text)
{
    constexpr QStringView openTag = u"<legacybroadcast>";
    const qsizetype start = text.indexOf(openTag);
    if (start < 0)
        return;
    m_headerLenLegacy = start + openTag.size();
    const qsizetype end = text.indexOf(QStringView(u"</legacybroadcast>"), start);
    if (end >= 0)
        m_footer = text.sliced(end);
}

bool FileLayout::locate(const QString &text, QStringView openTag, QStringView closeTag,
                        qsizetype &headerLength)
{
    const qsizetype section = text.indexOf(openTag);
    if (section < 0)
        return true;
    const qsizetype firstItem = text.indexOf(QStringView(u"<ITEM>"), section);
    if (firstItem < 0)
        return true;
    if (firstItem - section > longestDistance)
        return false;
    headerLength = firstItem;
    const qsizetype end = text.indexOf(closeTag, firstItem);
    if (end >= 0)
        m_footer = text.sliced(end);
    return true;
}

} // namespace quillet
