#include "app/help/NavigationPolicy.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr QStringView localNetwork = u"http://192.168.";
constexpr std::array<QStringView, 3> outside{u"http://", u"https://", u"mailto:"};

/// With all links followed.
bool liesIn(const QString &path, const QString &folder)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    return !canonical.isEmpty() && QFileInfo(path).canonicalFilePath().startsWith(canonical + u'/');
}

/// Where "<language>/User-Guide/pictures" may lead.
QString sharedPictures(const QString &guideFolder)
{
    return QFileInfo(guideFolder).canonicalFilePath() + QLatin1String("/../../User-Guide/pictures");
}

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
        const QString path = QDir::cleanPath(url.toLocalFile());
        const QString pictures = QDir::cleanPath(guideFolder) + QLatin1String("/pictures/");
        // A link in the folder must not lead out of it either, except to those of all languages.
        return liesIn(path, guideFolder) ||
               (path.startsWith(pictures) && liesIn(path, sharedPictures(guideFolder)));
    }
    if (url.scheme() == QLatin1String("data") || url.scheme() == QLatin1String("about"))
        return true;
    static const QRegularExpression localHost(QStringLiteral("^192\\.168\\.\\d+\\.\\d+$"));
    return handleLocalURLsInApp && url.scheme() == QLatin1String("http") &&
           localHost.match(url.host()).hasMatch();
}

} // namespace quillet
