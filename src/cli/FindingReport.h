#pragma once

#include "xml/Value.h"

#include <QString>

namespace quillet {

class Console;
struct ChannelList;

/// What is wrong with a file that was read, as the JSON of all commands has it.
[[nodiscard]] Value jsonFindings(const ChannelList &list);

/// The same to who reads the messages, before what could be read goes out.
void tellFindings(const QString &file, const ChannelList &list, Console &console);

} // namespace quillet
