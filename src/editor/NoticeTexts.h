#pragma once

#include "editor/EditorOutlets.h"

namespace quillet {

class TLLDocument;

/// What the bar above the table says about the file that the document was read from; no text when
/// there is nothing to say.
[[nodiscard]] Notice noticeFor(const TLLDocument &document);

/// What it says of what others have done to that file; no text when they have not.
[[nodiscard]] FileNotice fileNoticeFor(const TLLDocument &document);

} // namespace quillet
