#pragma once

#include <QByteArray>

namespace quillet {

class FileText;

/// The text of a file, in UTF-8, as it should be mended. Where it was read as Latin-1 because of
/// some bytes that are no UTF-8, only those are taken for Latin-1 here.
[[nodiscard]] QByteArray textToMend(const FileText &text);

} // namespace quillet
