#pragma once

namespace quillet {

/// Takes out of the environment what the XDG base directory convention says to ignore: folders that
/// are not absolute. A home that is not goes, too; then the one of the system's list of users
/// counts. To be called before anything looks for a folder.
void ignoreRelativeFolders();

} // namespace quillet
