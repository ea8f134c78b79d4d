#include "document/FileLayout.h"

namespace quillet {

bool FileLayout::locate(const FileText &text, bool hasAnalogue, bool hasDigital)
{
    FileText::Place footer;
    m_distantItem.reset();
    const bool isWellFormed =
        (!hasAnalogue || locateSection(text, QLatin1String("<ATV>"), QLatin1String("</ATV>"),
                                       m_headerLenATV, footer)) &&
        (!hasDigital || locateSection(text, QLatin1String("<DTV>"), QLatin1String("</DTV>"),
                                      m_headerLenDTV, footer));
    if (footer.isValid())
        m_footer = text.textFrom(footer);
    return isWellFormed;
}

bool FileLayout::locateSection(const FileText &text, QLatin1String openTag, QLatin1String closeTag,
                               qsizetype &headerLength, FileText::Place &footer)
{
    const FileText::Place section = text.find(openTag);
    if (!section.isValid())
        return true;
    const FileText::Place firstItem = text.find(QLatin1String("<ITEM>"), section);
    if (!firstItem.isValid())
        return true;
    if (const qsizetype distance = text.lengthBetween(section, firstItem);
        distance > longestDistance) {
        m_distantItem = {openTag.sliced(1).chopped(1), distance};
        return false;
    }
    headerLength = text.lengthBefore(firstItem);
    const FileText::Place end = text.find(closeTag, firstItem);
    if (end.isValid())
        footer = end;
    return true;
}

void FileLayout::locateLegacy(const FileText &text)
{
    const QLatin1String openTag("<legacybroadcast>");
    const FileText::Place start = text.find(openTag);
    if (!start.isValid())
        return;
    m_headerLenLegacy = text.lengthBefore(start) + openTag.size();
    const FileText::Place end = text.find(QLatin1String("</legacybroadcast>"), start);
    if (end.isValid())
        m_footer = text.textFrom(end);
}

} // namespace quillet
