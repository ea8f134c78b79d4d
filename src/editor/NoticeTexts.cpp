#include "editor/NoticeTexts.h"

#include "document/TLLDocument.h"
#include "document/repair/FileDiagnosis.h"
#include "files/Places.h"
#include "texts/FindingTexts.h"
#include "texts/MendingTexts.h"
#include "texts/ShownTexts.h"

#include <QStringList>

namespace quillet {

namespace {

QString textOf(const Repair &repair)
{
    return qtTrId("kMendedTitle").arg(repair.fileName) + u'\n' + textsOf(repair.mending).join(u' ');
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
    lines.append(findingTexts(document.list()));
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
