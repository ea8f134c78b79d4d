#include "BytesDocument.h"

#include "files/ShownPath.h"
#include "framework/RecentFiles.h"
#include "framework/RecentFilesMenu.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextLayout>

using namespace quillet;
using namespace quillet::testing;

class RecentFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings().clear();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void newestFirstWithoutDoubles()
    {
        RecentFiles recent;
        QSignalSpy changed(&recent, &RecentFiles::changed);
        for (const char *path : {"/a/1", "/a/2", "/a/b/../1"})
            recent.add(QString::fromLatin1(path));
        const QStringList expected{QStringLiteral("/a/1"), QStringLiteral("/a/2")};
        QCOMPARE(recent.paths(), expected);
        QTRY_COMPARE(RecentFiles().paths(), expected); // written for other programs
        for (int i = 0; i < 20; ++i)
            recent.add(QStringLiteral("/many/%1").arg(i));
        QCOMPARE(recent.paths().size(), RecentFiles::maximum);
        QCOMPARE(recent.paths().constFirst(), QStringLiteral("/many/19"));
        recent.clear();
        QVERIFY(recent.paths().isEmpty());
        QCOMPARE(changed.count(), 24);
    }

    void factsAreKept()
    {
        RecentFiles().add(QStringLiteral("/a/1"), {.origin = QStringLiteral("set"), .entries = 12});
        RecentFiles().add(QStringLiteral("/a/2"), {.origin = QString(5000, u'x')});
        std::vector<RecentFile> files = RecentFiles().files();
        QCOMPARE(files.size(), std::size_t{2});
        QVERIFY(!files[0].facts.entries && files[0].facts.origin.size() < 200);
        QCOMPARE(files[1].facts.origin, QStringLiteral("set"));
        QCOMPARE(files[1].facts.entries, std::optional<qint64>(12));
        const qint64 age = files[1].usedAt.secsTo(QDateTime::currentDateTimeUtc());
        QVERIFY(age >= 0 && age < 60);

        // A version that knew no facts has opened another file; somebody has edited the others.
        QSettings settings;
        settings.setValue("recentFiles", QStringList{QStringLiteral("/a/3"), QStringLiteral("/a/1"),
                                                     QStringLiteral("/a/2")});
        for (const char *key : {"recentFileFacts/1/entries", "recentFileFacts/1/used"})
            settings.setValue(key, QStringLiteral("-7 or so"));
        files = RecentFiles().files();
        QCOMPARE(files.size(), std::size_t{3});
        QVERIFY(files[0].facts.origin.isEmpty() && !files[0].facts.entries);
        QCOMPARE(files[1].facts.entries, std::optional<qint64>(12));
        QVERIFY(!files[2].facts.entries && !files[2].usedAt.isValid());
        RecentFiles().remove(QStringLiteral("/a/1"));
        files = RecentFiles().files();
        QVERIFY(files.size() == 2 && files[1].path == QLatin1String("/a/2"));
    }

    void menuShowsWhatIsThere()
    {
        RecentFiles recent;
        QMenu menu;
        RecentFilesMenu recentMenu(menu, recent);
        QSignalSpy chosen(&recentMenu, &RecentFilesMenu::fileChosen);
        QCOMPARE(entries(menu), QStringList{QStringLiteral("kClearMenu (off)")});

        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("x")));
        const QString gone = m_folder->filePath(QStringLiteral("gone <b>.tll"));
        const QString plain = m_folder->filePath(QStringLiteral("salt & pepper.tll"));
        const QString twin = m_folder->filePath(QStringLiteral("twin.tll"));
        const QString otherTwin = m_folder->filePath(QStringLiteral("x/twin.tll"));
        for (const QString &path : {gone, plain, twin, otherTwin}) {
            writeFile(path, "list");
            recent.add(path);
        }
        QVERIFY(QFile::remove(gone));
        const QStringList expected{
            QStringLiteral(u"twin.tll \u2014 ") + m_folder->filePath(QStringLiteral("x")),
            QStringLiteral(u"twin.tll \u2014 ") + m_folder->path(),
            QStringLiteral("salt && pepper.tll"),
            QStringLiteral("gone <b>.tll (off)"),
            QString(),
            QStringLiteral("kClearMenu"),
        };
        QCOMPARE(entries(menu), expected);
        const QString hint = QStringLiteral("kRecentFileMissingMessage ") + gone;
        QVERIFY(menu.actions().at(3)->toolTip().contains(hint.toHtmlEscaped()));
        QVERIFY(menu.toolTipsVisible());

        menu.actions().at(2)->trigger();
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.front().front().toString(), plain);
        menu.actions().constLast()->trigger();
        QCOMPARE(entries(menu), QStringList{QStringLiteral("kClearMenu (off)")});
    }

    void foldersFollowFromLeftToRight()
    {
        QCOMPARE(shownPath(QStringLiteral("/a b/ü.tll")), QStringLiteral("/a b/ü.tll"));
        const QString path = QStringLiteral(u"~/\u05E9\u05DC/\u0642 1/\u05D0 b.tll");
        const QString shown = shownPath(path);
        // Each name by itself, and all of them as a text that reads from left to right.
        QCOMPARE(shown, QStringLiteral(u"\u2066\u2068~\u2069/\u2068\u05E9\u05DC\u2069/"
                                       u"\u2068\u0642 1\u2069/\u2068\u05D0 b\u2069.tll\u2069"));
        QTextLayout layout(shown);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        const auto x = [&](const char16_t *part) {
            return line.cursorToX(static_cast<int>(shown.indexOf(QStringView(part))));
        };
        QVERIFY(x(u"~") < x(u"\u05E9") && x(u"\u05E9") < x(u"\u0642"));
        QVERIFY(x(u"\u0642") < x(u".tll"));
    }

private:
    /// The texts of the menu when it is about to show, disabled entries marked.
    static QStringList entries(QMenu &menu)
    {
        emit menu.aboutToShow();
        QStringList texts;
        const QList<QAction *> actions = menu.actions();
        for (const QAction *action : actions)
            texts.append(action->text() +
                         (action->isEnabled() ? QString() : QStringLiteral(" (off)")));
        return texts;
    }

    const ParameterTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_folder;
};

QUILLET_TEST(RecentFilesTest)

#include "RecentFilesTest.moc"
