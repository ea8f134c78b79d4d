#pragma once

#include <QString>
#include <QStringList>

namespace quillet {

struct ChannelList;
struct FileFinding;

/// One thing that is wrong with a file that was read all the same, in one or two sentences.
[[nodiscard]] QString textOf(const FileFinding &finding);
/// What is wrong with the file that the list was read from, and what its reading had to change; the
/// damage comes first. Empty for a file that is as it should be.
[[nodiscard]] QStringList findingTexts(const ChannelList &list);

} // namespace quillet
