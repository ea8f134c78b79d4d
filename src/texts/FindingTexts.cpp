#include "texts/FindingTexts.h"

#include "document/list/ChannelList.h"
#include "document/repair/FileDiagnosis.h"
#include "texts/ShownTexts.h"

namespace quillet {

namespace {

QString damageText(const FileFinding &finding)
{
    const int line = finding.line;
    if (finding.isJSONList)
        return qtTrId(finding.isLimit ? "kNoticeLimit" : "kNoticeDamagedLine").arg(line);
    const QString place =
        finding.isLimit ? qtTrId("kNoticeLimit").arg(line)
        : finding.lastStation
            ? qtTrId("kNoticeDamaged").arg(line).arg(drawnName(*finding.lastStation))
            : qtTrId("kNoticeDamagedFirst").arg(line);
    const QString consequence = finding.unread > 0
                                    ? qtTrId("kNoticeUnread", static_cast<int>(finding.unread))
                                    : qtTrId("kNoticeUnreadEnd");
    return place + u' ' + consequence;
}

} // namespace

QString textOf(const FileFinding &finding)
{
    using Kind = FileFinding::Kind;
    switch (finding.kind) {
    case Kind::Damaged:
        return damageText(finding);
    case Kind::Latin1:
        return qtTrId("kNoticeLatin1");
    case Kind::Declaration:
        return qtTrId("kNoticeDeclaration").arg(drawnName(finding.declared));
    case Kind::BinaryList:
        return qtTrId("kNoticeBinary");
    case Kind::NoXML:
        return qtTrId("kNoticeNoXML");
    case Kind::BadJSON:
        // Of a text that is cut the place is unknown.
        return finding.column > 0 ? qtTrId("kNoticeJSON").arg(finding.line).arg(finding.column)
                                  : qtTrId("kNoticeJSONCut");
    }
    return {};
}

QStringList findingTexts(const ChannelList &list)
{
    QStringList sentences;
    for (const FileFinding &finding : diagnose(list))
        sentences.append(textOf(finding));
    if (const std::size_t count = list.beyondLastNumber; count > 0)
        sentences.append(
            qtTrId("kNoticeBeyond", static_cast<int>(count)).arg(LGStation::progNumMask));
    return sentences;
}

} // namespace quillet
