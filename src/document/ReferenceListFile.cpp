#include "document/ReferenceListFile.h"

#include "document/TLLDocument.h"
#include "files/FileReading.h"

#include <QFileInfo>
#include <QUrl>

namespace quillet {

namespace {

ReferenceList fromChannelList(const QUrl &url, bool isTV)
{
    TLLDocument reference;
    reference.setIsInvisbleDocument(true);
    Error unused;
    if (!reference.readFromUrl(url, TLLDocument::typeName(), unused))
        return {};
    const StationListPtr stations = reference.listWithMostEntries(isTV);
    return stations ? referenceListFromStations(*stations) : ReferenceList();
}

ReferenceList fromText(const QUrl &url)
{
    QByteArray bytes;
    Error unused;
    if (!readFile(url, bytes, unused))
        return {};
    return referenceListFromData(bytes).value_or(ReferenceList());
}

} // namespace

bool isChannelListFile(const QString &path)
{
    constexpr qsizetype beginning = 4096;
    QByteArray bytes;
    Error unused;
    if (!readFile(QUrl::fromLocalFile(path), bytes, unused))
        return false;
    // In UTF-16 there is a zero beside each letter.
    return bytes.first(qMin(bytes.size(), beginning)).replace('\0', "").contains("<TLLDATA");
}

ReferenceList referenceListFromFile(const QString &path, bool isTV)
{
    const QUrl url = QUrl::fromLocalFile(path);
    const QString suffix = QFileInfo(path).suffix();
    if (suffix.compare(QLatin1String("tll"), Qt::CaseInsensitive) == 0)
        return fromChannelList(url, isTV);
    if (suffix.compare(QLatin1String("txt"), Qt::CaseInsensitive) == 0)
        return fromText(url);
    return {};
}

} // namespace quillet
