#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <QUrl>

#include <filesystem>

/// Paths as texts from which the name on the disk can be told again, whatever its bytes are. Within
/// the program a path is such a text, and a document's URL is made of one (QUrl::fromLocalFile and
/// toLocalFile, which keep it). What comes from outside is brought in by pathFromBytes() or
/// pathFromUrl(), what goes to the system by nativePath(), what a person reads by readable().
///
/// A name that is UTF-8 is spelt as it is. Each byte of any other, and of a character out of the
/// private range that stands for such bytes, is a character of that range: U+F780 for 0x80.
namespace quillet {

[[nodiscard]] QString pathFromBytes(QByteArrayView name);
[[nodiscard]] QByteArray bytesOfPath(const QString &path);

/// Of a file's URL from outside, whose bytes may be percent-encoded in any way; empty for another.
[[nodiscard]] QString pathFromUrl(const QUrl &url);

[[nodiscard]] std::filesystem::path nativePath(const QString &path);
[[nodiscard]] QString pathFromNative(const std::filesystem::path &path);
/// With the folder that the program runs in before a relative path. Nothing is tidied.
[[nodiscard]] QString absolutePath(const QString &path);

/// The name or path with a sign of replacement for what is no text, and for line breaks and the
/// like.
[[nodiscard]] QString readable(const QString &path);
/// The same, with "~" for the person's own folder.
[[nodiscard]] QString shortPath(const QString &path);

/// Whether a name that the program made up consists of that many digits, 0 to f. May be asked when
/// the program ends and has no static objects any more.
[[nodiscard]] bool isHexNumber(QStringView name, qsizetype digits);

} // namespace quillet
