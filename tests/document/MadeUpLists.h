#pragma once

#include "document/TLLDocument.h"
#include "testing/TLLText.h"

#include <functional>

/// Whole files of a few stations, and what tests do with the lists in them.
namespace quillet::testing {

using namespace Qt::Literals::StringLiterals;

inline QString items(const QStringList &names)
{
    QString text;
    for (qsizetype i = 0; i < names.size(); ++i)
        text += makeItem(makeStation(static_cast<int>(i) + 1, names[i]));
    return text;
}

/// A file whose text between the tags of CHANNEL is given.
inline QString file(const QString &channel)
{
    return u"<?xml version=\"1.0\"?>\r\n<TLLDATA>\r\n<ModelInfo><ModelName>X</ModelName>"
           "</ModelInfo>\r\n<CHANNEL>"_s +
           channel + u"</CHANNEL>\r\n<rest>1</rest>\r\n</TLLDATA>\r\n"_s;
}

inline QString digital(const QString &stations)
{
    return file(u"<DTV>\r\n"_s + stations + u"</DTV>\r\n"_s);
}

inline QString channel(const QString &name, int number, const char *source = "CABLE DIGITAL",
                       int type = 1)
{
    const QByteArray more = ",\"skipped\":false,\"SVCID\":\"" + name.toUtf8() + '"';
    return QString::fromUtf8(makeChannel(name.toUtf8(), QByteArray::number(number),
                                         {.source = source, .serviceType = type, .more = more}));
}

inline QString legacy(const QStringList &channels, const QString &tag = u"legacybroadcast"_s)
{
    return file(QStringLiteral("<%1>{\"a\":1.0,\"channelList\":[%2],\"z\":null}"
                               "</legacybroadcast>")
                    .arg(tag, channels.join(u',')));
}

inline StationPtr station(const TLLDocument &document, bool isTV, int source, std::size_t row)
{
    return document.lists().list(isTV, source)->at(row);
}

inline std::function<void(TLLDocument &)> rename(const QString &name)
{
    return [name](TLLDocument &document) { station(document, true, 0, 1)->setStationName(name); };
}

} // namespace quillet::testing
