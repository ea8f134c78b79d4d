#include "document/write/BroadcastWriting.h"

#include "model/FileWords.h"
#include "xml/JSONWriter.h"

#include <QSet>

#include <utility>
#include <vector>

namespace quillet {

QByteArray replaceBadChars(QByteArray text)
{
    return text.replace("&", "&amp;");
}

void appendBroadcastJSON(const LegacyBroadcast &broadcast, const StationList &current,
                         Utf8Builder &output)
{
    if (!broadcast.legacyDict)
        return;
    QSet<qint64> positions;
    for (const StationPtr &station : current)
        positions.insert(station->origPos());

    // The positions of the stations count in the sorted order, those of the channels in the file's;
    // they are compared as they are.
    const Array channels = broadcast.channelList();
    std::vector<Value> written;
    std::size_t next = 0;
    for (qsizetype position = 0; position < channels.count(); ++position) {
        if (!positions.contains(position))
            written.push_back(channels.at(position));
        else if (next < current.size())
            written.push_back(current[next++]->entry());
    }
    Dictionary whole = *broadcast.legacyDict;
    whole.insert(fileword::channelList.toString(), Array(std::move(written)));
    JSONWriter(output, JSONWriter::Place::InXML).append(whole);
}

} // namespace quillet
