#include "document/LoadingLog.h"

#include "document/read/ChannelFiling.h"
#include "support/KXFileLog.h"
#include "xml/FormattedDescription.h"

#include <QLoggingCategory>

namespace quillet {

namespace {

Q_LOGGING_CATEGORY(documentLog, "quillet.document")
/// The listings of whole files are off unless somebody asks for them.
Q_LOGGING_CATEGORY(broadcastLog, "quillet.legacybroadcast", QtInfoMsg)

QString logName()
{
    return QStringLiteral("XT");
}

void logBroadcast(const ChannelList &list)
{
    if (const auto &error = list.broadcast.error)
        LogToFile(logName(), "JSON Decoding problem: %ls", qUtf16Printable(error->message));
    if (broadcastLog().isDebugEnabled()) {
        qCDebug(broadcastLog).noquote()
            << "legacyDict ="
            << formattedDescription(list.broadcast.legacyDict.value_or(Dictionary()));
        int position = 0;
        for (const NumberedChannel &channel : sortedChannels(list.broadcast.channelList())) {
            const QString *name = channel.channel.string(u"channelName");
            qCDebug(broadcastLog).noquote()
                << QString::asprintf("[%03d] %d - %ls", ++position, channel.number,
                                     qUtf16Printable(name ? *name : QString()));
        }
    }
    qCInfo(documentLog, "Found legacy stations: %d",
           static_cast<int>(list.lists.list(true, 0)->size()));
}

void logUnfiled(const LGStation &station)
{
    const QString message =
        QStringLiteral("\n### Unknown station source: %1").arg(station.description());
    qCWarning(documentLog).noquote() << message;
    LogToFile(logName(), "%ls", qUtf16Printable(message));
}

} // namespace

void logLoading(const ChannelList &list, Reading reading)
{
    if (reading == Reading::NoText)
        return;
    if (list.isLegacyFormat)
        return logBroadcast(list);
    for (const StationPtr &station : list.unfiled)
        logUnfiled(*station);
    if (list.formatFault && list.formatFault->distance == 0)
        return; // a malformed section ended the filing before anything was counted
    for (const StationSource source : stationSources) {
        const int index = static_cast<int>(source);
        const auto count = [&list, index](bool isTV) {
            return static_cast<long>(list.lists.list(isTV, index)->size());
        };
        LogToFile(logName(), "TV[%i] = %ld", index, count(true));
        LogToFile(logName(), "Radio[%i] = %ld", index, count(false));
    }
}

} // namespace quillet
