#pragma once

#include <QUrl>

namespace quillet {

/// Where a link of the help window leads.
enum class Navigation {
    Inside,  ///< shown in the window
    Outside, ///< handed to the system; the window stays where it is
};

/// Decides by looking for patterns anywhere in the address, without regard to case: addresses of
/// the local network stay inside when `handleLocalURLsInApp` is set; web and mail addresses go
/// outside, and so does a page whose address merely contains one; everything else stays inside.
[[nodiscard]] Navigation navigationFor(const QUrl &url, bool handleLocalURLsInApp);

/// Whether the help window may fetch the address for what it shows: the files of the guide's
/// folder, whose "pictures" may be a link to those of the English guide two folders above, and
/// pages of the local network where those stay inside. Nothing else is ever fetched.
[[nodiscard]] bool mayFetch(const QUrl &url, const QString &guideFolder, bool handleLocalURLsInApp);

} // namespace quillet
