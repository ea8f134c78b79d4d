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
        const auto row = [](const char *address, bool allowed) {
            QTest::newRow(address) << QString::fromLatin1(address) << allowed;
        };
        row("file://%1/guide/index.html", true);
        row("file://%1/guide/pictures/window.png", true);
        row("file://%1/guide/../secret.txt", false);
        row("file://%1/guide/%2e%2e/secret.txt", false);
        row("file://%1/guide/link.txt", false); // leads out of the folder
        row("file://%1/guide2/index.html", false);
        row("file://%1/guide2/pictures/window.png", false); // though a link leads there
        row("file://%1/guide/pictures/link.txt", false);
        row("file://%1/guide/missing.html", false);
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
        QTemporaryDir home;
        const QDir folder(home.path());
        QVERIFY(folder.mkpath(QStringLiteral("guide")));
        QVERIFY(folder.mkpath(QStringLiteral("guide2/pictures")));
        for (const char *name :
             {"guide/index.html", "guide2/pictures/window.png", "guide2/index.html", "secret.txt"})
            writeFile(folder.filePath(QLatin1String(name)), "x");
        for (const auto &[target, link] : {std::pair{"guide2/pictures", "guide/pictures"},
                                           {"secret.txt", "guide2/pictures/link.txt"},
                                           {"secret.txt", "guide/link.txt"}})
            QVERIFY(QFile::link(folder.filePath(QLatin1String(target)),
                                folder.filePath(QLatin1String(link))));

        const QUrl url(address.replace(QLatin1String("%1"), folder.canonicalPath()));
        QTEST(mayFetch(url, folder.filePath(QStringLiteral("guide")), true), "allowed");
    }
};

QUILLET_TEST(NavigationPolicyTest)
#include "NavigationPolicyTest.moc"
