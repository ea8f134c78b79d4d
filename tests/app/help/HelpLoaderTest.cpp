#include "app/HelpLoader.h"

#include "app/DesktopServices.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"
#include "texts/Translations.h"

#include <QDir>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// What lies beside the program or where it is installed; here, beside the test.
class HelpLoaderTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { cleanup(); }
    void cleanup()
    {
        for (const QString &place : {u"resources"_s, u"modules"_s, u"../share"_s, u"../lib"_s})
            QDir(at(place)).removeRecursively();
    }

    void findsTheGuide()
    {
        QCOMPARE(resourceFolder(), std::nullopt);
        for (const QString &place : {u"../share/quillet"_s, u"resources"_s}) { // rising in rank
            QVERIFY(QDir().mkpath(at(place + u"/User-Guide"_s)));
            QVERIFY(resourceFolder() != at(place)); // a folder is no guide
            writeFile(at(place + u"/User-Guide/index.html"_s), "x");
            QCOMPARE(resourceFolder(), std::optional(at(place)));
        }
    }

    void findsTheGuideInTheLanguageOfTheTexts()
    {
        for (const QString &folder : {u"resources/User-Guide"_s, u"resources/de/User-Guide"_s}) {
            QVERIFY(QDir().mkpath(at(folder)));
            writeFile(at(folder + u"/index.html"_s), "x");
        }
        const auto restore = qScopeGuard([] { installTranslations(); });
        for (const auto &[language, folder] :
             {std::pair{u"de_AT"_s, u"resources/de"_s}, {u"pl"_s, u"resources"_s}}) {
            installTranslations(language);
            QCOMPARE(resourceFolder(), std::optional(at(folder)));
        }
    }

    void loadsTheModule()
    {
        DesktopServices services;
        QVERIFY(!helpModule() && !loadHelpBrowser(services));
        for (const QString &place : {u"../lib/quillet"_s, u"modules"_s})
            QVERIFY(QDir().mkpath(at(place)));
        const QString name = QFileInfo(QStringLiteral(QUILLET_HELP_MODULE)).fileName();
        writeFile(at(u"../lib/quillet/"_s + name), "no module");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(name));
        QVERIFY(!loadHelpBrowser(services));
        QVERIFY(QFile::link(QStringLiteral(QUILLET_HELP_MODULE), at(u"modules/"_s + name)));
        QVERIFY(helpModule() && loadHelpBrowser(services));
    }

private:
    [[nodiscard]] static QString at(const QString &place)
    {
        return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + place);
    }
};

QUILLET_TEST(HelpLoaderTest)
#include "HelpLoaderTest.moc"
