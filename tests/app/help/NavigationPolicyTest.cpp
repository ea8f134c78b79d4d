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
        row("file:///guide/moving.html#gaps", true, true);
        row("file:///etc/passwd", true, true); // which mayFetch then refuses
        row("http://example.org", false, false);
        row("https://example.org/page", false, false);
        row("HTTPS://EXAMPLE.ORG", false, false);
        row("Http://Example.org", false, false);
        row("mailto:owner@example.org", false, false);
        row("MAILTO:owner@example.org", false, false);
        row("http://192.168.1.1", true, false);
        row("http://192.168.178.20:8080/setup", true, false);
        row("HTTP://192.168.1.1/", true, false);
        row("https://192.168.1.1", false, false);
        row("http://192.169.1.1", false, false);
        row("http://10.0.0.1", false, false);
        row("file:///guide/index.html?next=http://example.org", false, false);
        row("file:///guide/index.html?next=http://192.168.1.1", true, false);
        row("https://example.org/?from=http://192.168.0.1", true, false);
        row("file:///guide/index.html?write=mailto:owner@example.org", false, false);
        row("javascript:alert(1)", true, true);
        row("data:text/html,hello", true, true);
        row("data:text/html,<a href=https://example.org>", false, false);
        row("about:blank", true, true);
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

        QTest::newRow("page") << "file://%1/guide/index.html" << true;
        QTest::newRow("picture in a folder") << "file://%1/guide/pictures/window.png" << true;
        QTest::newRow("other file") << "file://%1/secret.txt" << false;
        QTest::newRow("up and out") << "file://%1/guide/../secret.txt" << false;
        QTest::newRow("encoded up and out") << "file://%1/guide/%2e%2e/secret.txt" << false;
        QTest::newRow("link out of the folder") << "file://%1/guide/link.txt" << false;
        QTest::newRow("folder with the same beginning") << "file://%1/guide2/index.html" << false;
        QTest::newRow("missing file") << "file://%1/guide/missing.html" << false;
        QTest::newRow("web") << "http://example.org/x.png" << false;
        QTest::newRow("secure web") << "https://example.org/x.png" << false;
        QTest::newRow("web naming the local network")
            << "https://example.org/?http://192.168.0.1" << false;
        QTest::newRow("local network") << "http://192.168.1.1/" << true;
        QTest::newRow("name like the local network") << "http://192.168.1.1.example.org/" << false;
        QTest::newRow("ftp") << "ftp://example.org/x" << false;
        QTest::newRow("web socket") << "ws://example.org/" << false;
        QTest::newRow("data") << "data:image/png;base64,AAAA" << true;
    }
    void fetchesTheGuideAlone()
    {
        QFETCH(QString, address);
        QTemporaryDir home;
        const QDir folder(home.path());
        QVERIFY(folder.mkpath(QStringLiteral("guide/pictures")));
        QVERIFY(folder.mkpath(QStringLiteral("guide2")));
        for (const char *name :
             {"guide/index.html", "guide/pictures/window.png", "guide2/index.html", "secret.txt"})
            writeFile(folder.filePath(QLatin1String(name)), "x");
        QVERIFY(QFile::link(folder.filePath(QStringLiteral("secret.txt")),
                            folder.filePath(QStringLiteral("guide/link.txt"))));

        const QUrl url(address.replace(QLatin1String("%1"), folder.canonicalPath()));
        QTEST(mayFetch(url, folder.filePath(QStringLiteral("guide")), true), "allowed");
    }
};

QUILLET_TEST(NavigationPolicyTest)
#include "NavigationPolicyTest.moc"
