#include "app/help/NavigationPolicy.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using quillet::testing::writeFile;

class NavigationPolicyTest : public QObject
{
    Q_OBJECT

private slots:
    void decidesWhereALinkLeads_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("inside");
        QTest::addColumn<bool>("insideWithoutLocalNetwork");

        const auto row = [](const char *address, bool inside, bool without) {
            QTest::newRow(address) << QString::fromLatin1(address) << inside << without;
        };
        row("", true, true);
        row("file:///guide/index.html", true, true);
        row("file:///etc/passwd", true, true); // which mayFetch then refuses
        row("https://example.org/page", false, false);
        row("Http://Example.org", false, false);
        row("mailto:owner@example.org", false, false);
        row("http://192.168.178.20:8080/setup", true, false);
        row("HTTP://192.168.1.1/", true, false);
        row("https://192.168.1.1", false, false);
        row("http://192.169.1.1", false, false);
        row("file:///guide/index.html?next=http://example.org", false, false);
        row("https://example.org/?from=http://192.168.0.1", true, false);
        row("file:///guide/index.html?write=mailto:owner@example.org", false, false);
        row("data:text/html,<a href=https://example.org>", false, false);
        row("ftp://example.org/file", true, true); // which mayFetch then refuses
    }
    void decidesWhereALinkLeads()
    {
        QFETCH(QString, address);
        const auto isInside = [&address](bool local) {
            return navigationFor(QUrl(address), local) == Navigation::Inside;
        };
        QTEST(isInside(true), "inside");
        QTEST(isInside(false), "insideWithoutLocalNetwork");
    }

    void fetchesTheGuideAlone_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("allowed");
        QTest::addColumn<QString>("language");
        const auto row = [](const char *address, bool allowed, const char *language = "de") {
            QTest::newRow(address)
                << QString::fromLatin1(address) << allowed << QString::fromLatin1(language);
        };
        row("file://%1/de/User-Guide/index.html", true);
        row("file://%1/de/User-Guide/pictures/window.png", true);
        row("file://%1/de/User-Guide/../../secret.txt", false);
        row("file://%1/de/User-Guide/%2e%2e/%2e%2e/secret.txt", false);
        row("file://%1/de/User-Guide/link.txt", false); // leads out of the folder
        row("file://%1/User-Guide/index.html", false);
        row("file://%1/User-Guide/pictures/window.png", false); // though a link leads there
        row("file://%1/de/User-Guide/pictures/link.txt", false);
        row("file://%1/nl/User-Guide/pictures/secret.txt", false, "nl"); // which lead to everything
        row("file://%1/de/User-Guide/missing.html", false);
        row("https://example.org/x.png", false);
        row("https://example.org/?http://192.168.0.1", false);
        row("http://192.168.1.1/", true);
        row("http://192.168.1.1.example.org/", false);
        row("ws://example.org/", false);
        row("data:image/png;base64,AAAA", true);
    }
    void fetchesTheGuideAlone()
    {
        QFETCH(QString, address);
        QFETCH(QString, language);
        QTemporaryDir home;
        const QDir folder(home.path());
        for (const char *name : {"de/User-Guide", "nl/User-Guide", "User-Guide/pictures"})
            QVERIFY(folder.mkpath(QLatin1String(name)));
        for (const char *name : {"de/User-Guide/index.html", "User-Guide/pictures/window.png",
                                 "User-Guide/index.html", "secret.txt"})
            writeFile(folder.filePath(QLatin1String(name)), "x");
        for (const auto &[target, link] :
             {std::pair{"User-Guide/pictures", "de/User-Guide/pictures"},
              {".", "nl/User-Guide/pictures"},
              {"secret.txt", "User-Guide/pictures/link.txt"},
              {"secret.txt", "de/User-Guide/link.txt"}})
            QVERIFY(QFile::link(folder.filePath(QLatin1String(target)),
                                folder.filePath(QLatin1String(link))));

        const QUrl url(address.replace(QLatin1String("%1"), folder.canonicalPath()));
        QTEST(mayFetch(url, folder.filePath(language + QLatin1String("/User-Guide")), true),
              "allowed");
    }
};

QUILLET_TEST(NavigationPolicyTest)
#include "NavigationPolicyTest.moc"
