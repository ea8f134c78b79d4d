#include "document/ReferenceListFile.h"

#include "document/TLLDocument.h"
#include "files/FileReading.h"
#include "texts/ReferenceListReading.h"

#include <QFileInfo>
#include <QUrl>

#include <new>

namespace quillet {

namespace {

ReferenceList fromChannelList(const QUrl &url, bool isTV, QString &reason)
{
    TLLDocument reference;
    reference.setIsInvisbleDocument(true);
    Error error;
    if (!reference.readFromUrl(url, TLLDocument::typeName(), error)) {
        reason = error.text();
        return {};
    }
    return referenceListFromList(reference.list(), isTV, reason);
}

ReferenceList fromText(const QUrl &url, bool isTV, QString &reason)
{
    QByteArray bytes;
    Error error;
    if (!readFile(url, bytes, error)) {
        reason = error.text();
        return {};
    }
    try {
        return referenceListFromBytes(bytes, ReferenceSource::Text, isTV, reason);
    } catch (const std::bad_alloc &) {
        reason = qtTrId("kNoMemoryReason");
        return {};
    }
}

} // namespace

ReferenceList referenceListFromFile(const QString &path, bool isTV, QString &reason)
{
    const QUrl url = QUrl::fromLocalFile(path);
    const QString suffix = QFileInfo(path).suffix();
    if (suffix.compare(QLatin1String("tll"), Qt::CaseInsensitive) == 0)
        return fromChannelList(url, isTV, reason);
    if (suffix.compare(QLatin1String("txt"), Qt::CaseInsensitive) == 0)
        return fromText(url, isTV, reason);
    return {};
}

} // namespace quillet
