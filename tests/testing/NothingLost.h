#pragma once

#include <QByteArray>

namespace quillet {

struct ChannelList;

namespace testing {

// What must hold whatever is in a file and is done to its list; shared by the tests and the fuzzer.
// Each gives the first thing that does not hold, or null.

/// Of a list as it was read: every station is listed once, numbers rise, and a mended text that is
/// offered holds at least as much.
[[nodiscard]] const char *faultOfReading(const ChannelList &list);

/// Of a list with any edits while one of its lists is on show: what a save would lose is told, and
/// the repaired writing loses nothing. Stations are told apart by their service ids.
/// The losses count up when a save would lose stations or have some twice.
[[nodiscard]] const char *faultOfSaving(const ChannelList &list, bool isTV, int source,
                                        int *losses = nullptr);

/// All that an edit may change of the stations of a list, in the lists' order.
[[nodiscard]] QByteArray stationsText(const ChannelList &list);

/// Of a list with any edits: what recovery keeps of them makes the same list of the bytes again,
/// its entries, orders and remembered names, and a save writes the same of it.
[[nodiscard]] const char *faultOfBringingBack(const ChannelList &list);

} // namespace testing

} // namespace quillet
