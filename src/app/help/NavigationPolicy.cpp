#include "app/help/NavigationPolicy.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr QStringView localNetwork = u"http://192.168.";
constexpr std::array<QStringView, 3> outside{u"http://", u"https://", u"mailto:"};

} // namespace

Navigation navigationFor(const QUrl &url, bool handleLocalURLsInApp)
{
    const QString text = url.toString(QUrl::FullyEncoded).toLower();
    if (handleLocalURLsInApp && text.contains(localNetwork))
        return Navigation::Inside;
    const bool leads = std::any_of(outside.begin(), outside.end(),
                                   [&text](QStringView pattern) { return text.contains(pattern); });
    return leads ? Navigation::Outside : Navigation::Inside;
}

bool mayFetch(const QUrl &url, const QString &guideFolder, bool handleLocalURLsInApp)
{
    if (url.isLocalFile()) {
        // A link in the folder must not lead out of it either.
        const QString file = QFileInfo(url.toLocalFile()).canonicalFilePath();
        const QString folder = QFileInfo(guideFolder).canonicalFilePath();
        return !folder.isEmpty() && file.startsWith(folder + u'/');
    }
    if (url.scheme() == QLatin1String("data") || url.scheme() == QLatin1String("about"))
        return true;
    static const QRegularExpression localHost(QStringLiteral("^192\\.168\\.\\d+\\.\\d+$"));
    return handleLocalURLsInApp && url.scheme() == QLatin1String("http") &&
           localHost.match(url.host()).hasMatch();
}

} // namespace quillet
