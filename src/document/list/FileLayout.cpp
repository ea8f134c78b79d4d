#include "document/list/FileLayout.h"

#include "model/FileWords.h"

namespace quillet {

using fileword::endTag;
using fileword::startTag;

namespace {

constexpr auto atvStart = startTag(fileword::atv);
constexpr auto atvEnd = endTag(fileword::atv);
constexpr auto dtvStart = startTag(fileword::dtv);
constexpr auto dtvEnd = endTag(fileword::dtv);
constexpr auto itemStart = startTag(fileword::item);

} // namespace

struct FileLayout::SectionTags
{
    QLatin1String section;
    QLatin1String start;
    QLatin1String end;
};

bool FileLayout::locate(const FileText &text, bool hasAnalogue, bool hasDigital)
{
    const SectionTags atv{fileword::atv.latin1(), atvStart.latin1(), atvEnd.latin1()};
    const SectionTags dtv{fileword::dtv.latin1(), dtvStart.latin1(), dtvEnd.latin1()};
    FileText::Place footer;
    m_distantItem.reset();
    const bool isWellFormed = (!hasAnalogue || locateSection(text, atv, m_headerLenATV, footer)) &&
                              (!hasDigital || locateSection(text, dtv, m_headerLenDTV, footer));
    if (footer.isValid())
        m_footer = text.textFrom(footer);
    return isWellFormed;
}

bool FileLayout::locateSection(const FileText &text, const SectionTags &tags,
                               qsizetype &headerLength, FileText::Place &footer)
{
    const FileText::Place section = text.find(tags.start);
    if (!section.isValid())
        return true;
    const FileText::Place firstItem = text.find(itemStart.latin1(), section);
    if (!firstItem.isValid())
        return true;
    if (const qsizetype distance = text.lengthBetween(section, firstItem);
        distance > longestDistance) {
        m_distantItem = {tags.section, distance};
        return false;
    }
    headerLength = text.lengthBefore(firstItem);
    const FileText::Place end = text.find(tags.end, firstItem);
    if (end.isValid())
        footer = end;
    return true;
}

void FileLayout::locateLegacy(const FileText &text)
{
    static constexpr auto openTag = startTag(fileword::legacyBroadcast);
    static constexpr auto closeTag = endTag(fileword::legacyBroadcast);
    const FileText::Place start = text.find(openTag.latin1());
    if (!start.isValid())
        return;
    m_headerLenLegacy = text.lengthBefore(start) + openTag.bytes().size();
    const FileText::Place end = text.find(closeTag.latin1(), start);
    if (end.isValid())
        m_footer = text.textFrom(end);
}

} // namespace quillet
