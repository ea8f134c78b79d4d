#pragma once

#include "document/list/ChannelList.h"
#include "document/write/TLLWriter.h"
#include "testing/NothingLost.h"

#include <QCryptographicHash>

#include <chrono>

/// What a process that edits and the test that kills it agree on.
namespace quillet::testing {

/// In milliseconds, by a clock that all processes share.
[[nodiscard]] inline qint64 now()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
}

[[nodiscard]] inline QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5).toHex();
}

/// Of its stations and what a save would write.
[[nodiscard]] inline QByteArray digestOf(const ChannelList &list)
{
    return digestOf(stationsText(list) + writeTLL(list, list.lists.list(true, 1)));
}

} // namespace quillet::testing
