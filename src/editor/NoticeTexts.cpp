#include "editor/NoticeTexts.h"

#include "document/TLLDocument.h"
#include "document/repair/FileDiagnosis.h"
#include "editor/ShownTexts.h"
#include "files/Places.h"

#include <QStringList>

#include <array>

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

struct MendingText
{
    qsizetype Mending::*count;
    const char *id;
};

constexpr std::array mendingTexts{
    MendingText{&Mending::ampersands, "kMendedAmpersands"},
    MendingText{&Mending::brackets, "kMendedBrackets"},
    MendingText{&Mending::controls, "kMendedControls"},
    MendingText{&Mending::tags, "kMendedTags"},
    MendingText{&Mending::strays, "kMendedStrays"},
};

QString textOf(const Repair &repair)
{
    const Mending &mending = repair.mending;
    QStringList sentences;
    for (const auto &[count, id] : mendingTexts) {
        if (mending.*count > 0)
            sentences.append(qtTrId(id, static_cast<int>(mending.*count)));
    }
    if (mending.endWasMissing)
        sentences.append(qtTrId("kMendedEnd"));
    if (mending.keptStation)
        sentences.append(qtTrId("kMendedCut"));
    if (mending.droppedStation)
        sentences.append(qtTrId("kMendedDropped"));
    return qtTrId("kMendedTitle").arg(repair.fileName) + u'\n' + sentences.join(u' ');
}

} // namespace

Notice noticeFor(const TLLDocument &document)
{
    Notice notice;
    QStringList lines;
    if (const auto &repair = document.repair()) {
        lines.append(textOf(*repair));
    } else {
        notice.offersRepair = repairedText(document.list()).has_value();
    }
    for (const FileFinding &finding : diagnose(document.list()))
        lines.append(textOf(finding));
    if (const std::size_t count = document.list().beyondLastNumber; count > 0)
        lines.append(qtTrId("kNoticeBeyond", static_cast<int>(count)).arg(LGStation::progNumMask));
    notice.isWarning = !lines.isEmpty() && !document.repair();
    const QString path = document.fileUrl().toLocalFile();
    if (isThere(path) && !canBeReplaced(path))
        lines.append(qtTrId("kNoticeReadOnly"));
    notice.text = lines.join(u'\n');
    return notice;
}

FileNotice fileNoticeFor(const TLLDocument &document)
{
    const QString name = drawnName(document.displayName());
    switch (document.fileNews()) {
    case FileState::Change::None:
        break;
    case FileState::Change::Content:
        return {qtTrId("kNoticeFileChanged").arg(name), true};
    case FileState::Change::Gone:
        return {qtTrId("kNoticeFileGone").arg(name)};
    case FileState::Change::Unreadable:
        return {qtTrId("kNoticeFileUnreadable").arg(name, document.fileObstacle())};
    }
    return {};
}

} // namespace quillet
