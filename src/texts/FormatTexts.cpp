#include "texts/FormatTexts.h"

#include <QStringList>

namespace quillet {

QString badFormatDetail(const ChannelList &list)
{
    QStringList lines;
    if (const auto &fault = list.formatFault)
        lines.append(fault->distance == 0
                         ? qtTrId("kBadSectionContent").arg(fault->section)
                         : qtTrId("kBadSectionDistance", static_cast<int>(fault->distance))
                               .arg(fault->section)
                               .arg(FileLayout::longestDistance));
    if (list.parseError)
        lines.append(qtTrId(list.parseError->isLimit ? "kNoticeLimit" : "kNoticeDamagedLine")
                         .arg(list.parseError->line));
    return lines.join(u'\n');
}

QString reasonAgainst(Reading reading, const ChannelList &list)
{
    switch (reading) {
    case Reading::Done:
        break;
    case Reading::NoText:
        return qtTrId("kContentUnknownReason");
    case Reading::BadFormat:
        const QString detail = badFormatDetail(list);
        return detail.isEmpty() ? qtTrId("Bad file format")
                                : qtTrId("Bad file format") + u'\n' + detail;
    }
    return {};
}

} // namespace quillet
