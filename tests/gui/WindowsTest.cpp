#include "AppFixture.h"

#include "app/OpenRequest.h"
#include "app/ProgramStyle.h"
#include "app/TerminationSignals.h"
#include "editor/EditorView.h"
#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "framework/RecentFiles.h"
#include "testing/TestMain.h"
#include "texts/Translations.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QDir>
#include <QDropEvent>
#include <QFileOpenEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <csignal>
#include <filesystem>

using namespace quillet;
using namespace quillet::testing;

namespace {

enum class Way { Panel, Recent, Drop, OtherStart, FileManager };

void openBy(Way way, App &app, QMainWindow &window, const QUrl &url)
{
    const QString path = pathFromUrl(url);
    switch (way) {
    case Way::Panel:
        app.preset.answerOpenPanel({path});
        return menuItem(window, "openDocument").trigger();
    case Way::Recent:
        app.delegate.documents().recentFiles().add(path);
        emit part<QMenu>(window, "recentFiles").aboutToShow();
        return part<QMenu>(window, "recentFiles").actions().constFirst()->trigger();
    case Way::Drop: {
        QMimeData data;
        data.setUrls({url});
        auto *editor = window.findChild<EditorView *>();
        QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(editor, &enter);
        QDropEvent event({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(editor, &event);
        return;
    }
    case Way::OtherStart:
        return app.delegate.openRequested({{path}, {}});
    case Way::FileManager: {
        QFileOpenEvent event(url);
        QApplication::sendEvent(qApp, &event);
    }
    }
}

} // namespace

/// Several windows, the controls of one, and files that are no channel lists.
class WindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void windowsAreIndependent()
    {
        App app;
        QMainWindow *first = app.open("a.tll", listOf(3));
        QMainWindow *second = app.open("b.tll", listOf(4));
        QVERIFY(first && second);
        QTest::keyClicks(&part<QLineEdit>(*second, "searchText"), QStringLiteral("3"));
        selectRows(*second, {0});
        menuItem(*second, "fillGapsClicked").trigger();
        QCOMPARE(tableOf(*first).model()->rowCount(), 3);
        QVERIFY(!tableOf(*first).selectionModel()->hasSelection());
        QVERIFY(!menuItem(*first, "fillGapsClicked").isChecked());
    }

    void fileIsOpenOnce_data()
    {
        QTest::addColumn<Way>("way");
        QTest::addColumn<QByteArray>("name"); // percent-encoded
        QTest::newRow("panel") << Way::Panel << QByteArray("link.tll");
        QTest::newRow("recent") << Way::Recent << QByteArray("link.tll");
        QTest::newRow("drop") << Way::Drop << QByteArray("hard.tll");
        QTest::newRow("drop, encoded") << Way::Drop << QByteArray("%61%E4.tll");
        QTest::newRow("other start") << Way::OtherStart << QByteArray("link.tll");
        QTest::newRow("other start, up") << Way::OtherStart << QByteArray("far/../../a%E4.tll");
        QTest::newRow("file manager") << Way::FileManager << QByteArray("a%E4.tll");
    }
    /// By whichever way it comes and whatever it is called.
    void fileIsOpenOnce()
    {
        QFETCH(Way, way);
        QFETCH(QByteArray, name);
        namespace fs = std::filesystem;
        App app;
        const fs::path folder = nativePath(app.folder.path());
        const fs::path file = folder / "a\xE4.tll"; // no text
        fs::copy_file(nativePath(app.write("a.tll", listOf(3))), file);
        fs::remove(folder / "a.tll");
        fs::create_symlink(file, folder / "link.tll");
        fs::create_hard_link(file, folder / "hard.tll");
        fs::create_directories(folder / "x/y");
        fs::create_directory_symlink("x/y", folder / "far");
        app.delegate.applicationDidFinishLaunching({pathFromNative(file)});
        QMainWindow *first = app.window();
        app.delegate.documents().newDocument();
        QMainWindow *second = app.window(2);
        QVERIFY(first && second);
        RecentFiles &recent = app.delegate.documents().recentFiles();
        recent.clear();

        const QUrl url =
            QUrl::fromEncoded("file://" + QFile::encodeName(app.folder.path()) + '/' + name);
        const QString path = pathFromUrl(url);
        openBy(way, app, *second, url);
        QVERIFY(QTest::qWaitForWindowActive(first));
        QVERIFY(app.preset.isSettled());
        QCOMPARE(app.delegate.documents().documents().size(), std::size_t{2});
        QCOMPARE(tableOf(*second).model()->rowCount(), 0);
        QCOMPARE(recent.paths().constFirst(), pathFromNative(file));
    }

    void droppedFileIsRecent()
    {
        App app;
        app.delegate.applicationDidFinishLaunching({});
        const QString path = app.write("a.tll", listOf(3));
        openBy(Way::Drop, app, *app.window(), QUrl::fromLocalFile(path));
        QTRY_COMPARE(app.delegate.documents().recentFiles().paths(), QStringList{path});
        // A start without files brings a window to the front, and none when it is asked to quit.
        app.window()->showMinimized();
        QVERIFY(app.delegate.mayOpen());
        app.delegate.openRequested({});
        QVERIFY(app.window() && !app.window()->isMinimized());
        app.delegate.documents().documents().front()->updateChangeCount(Document::Change::Done);
        app.delegate.terminate();
        QVERIFY(!app.delegate.mayOpen());
        app.preset.answerAlert(label("kCancel"));
        QTRY_VERIFY(app.delegate.mayOpen());
    }

    void whatIsDoneSilentlyIsToldAndUndone()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        const auto &line = part<QLabel>(*window, "toldText");
        QVERIFY(line.text().isEmpty());
        emit app.delegate.documents().documents().front()->told(QStringLiteral("done"));
        QVERIFY(line.isVisible() && line.text() == QLatin1String("done"));
        // What was chosen in a sheet to be done silently is undone in the menu.
        const QAction &always = menuItem(*window, "alwaysRepair");
        QVERIFY(!always.isVisible());
        app.delegate.settings().set(Setting::RepairsJSONLists, true);
        emit part<QMenu>(*window, "fileMenu").aboutToShow();
        QVERIFY(always.isVisible() && always.isChecked());
        menuItem(*window, "alwaysRepair").trigger();
        QVERIFY(!always.isVisible() && !app.delegate.settings().isOn(Setting::RepairsJSONLists));
    }

    void quitAsksAboutChanges()
    {
        const QTemporaryDir state;
        FileOperations operations;
        RecoveryStore store(state.filePath(QStringLiteral("recovery")), operations);
        App app;
        app.delegate.keepChanges(store, {std::chrono::hours(1), std::chrono::hours(1)});
        QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        selectRows(*window, {2});
        app.preset.answerAlert(label("kMovingOK"), QStringLiteral("1"));
        menuItem(*window, "moveItemsToClicked").trigger();
        QTRY_VERIFY(window->isWindowModified());
        QVERIFY(QDir(store.root()).isEmpty());
        // Whatever asks for it, there is one question.
        const TerminationSignals termination;
        QSignalSpy received(&termination, &TerminationSignals::received);
        connect(&termination, &TerminationSignals::received, &app.delegate,
                &AppDelegate::terminateSoon);
        for (const int number : {SIGTERM, SIGINT, SIGHUP})
            QCOMPARE(std::raise(number), 0);
        QTRY_COMPARE(received.size(), 3);
        QCOMPARE(QDir(store.root()).count(), 3u); // what may come now loses nothing
        menuItem(*window, "terminate").trigger();
        QVERIFY(!app.delegate.terminateNow());
        QCOMPARE(app.preset.alerts().size(), std::size_t{2}); // with the one of the move
        app.preset.answerAlert(label("kCancel"));
        QTRY_VERIFY(app.preset.isSettled());
        app.preset.answerAlert(label("kCancel"));
        QVERIFY(!app.delegate.terminateNow() && window->isVisible());

        app.preset.answerAlert(label("kDiscardChanges"));
        bool isEnding = false;
        QTimer::singleShot(0, window, [&] { isEnding = app.delegate.terminateNow(); });
        QTimer::singleShot(30000, &app.delegate, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(isEnding);
        QVERIFY(app.preset.isSettled() && app.delegate.documents().documents().empty());
        QCOMPARE(contentOf(app.folder.filePath(QStringLiteral("a.tll"))), listOf(3));
        QTRY_VERIFY(QDir(store.root()).isEmpty());
    }

    void tabVisitsEveryControlOnce()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        selectRows(*window, {0}); // enables the commands for stations
        auto &start = part<QWidget>(*window, "tvButton");
        start.setFocus();
        QStringList visited;
        do {
            visited.append(window->focusWidget()->objectName());
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        } while (!start.hasFocus() && visited.size() < 50);
        // From the top of the window to the bottom.
        QCOMPARE(visited.join(QLatin1Char(' ')),
                 QStringLiteral("tvButton segment0 searchText filterPop list moveToButton "
                                "infoButton applyButton fillGapsButton"));
        const QList<QWidget *> widgets = window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if ((widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
                widget->isVisible())
                QVERIFY2(visited.contains(widget->objectName()), qPrintable(widget->objectName()));
        }
    }

    /// Those of Qt come from a package of their own.
    void textsOfQtFollowTheLanguage_data()
    {
        QTest::addColumn<QString>("close");
        const std::pair<const char *, const char16_t *> words[]{
            {"de", u"Schließen"}, {"en", u"Close"},   {"es", u"Cerrar"},  {"fr", u"Fermer"},
            {"it", u"Chiudi"},    {"nl", u"Sluiten"}, {"pl", u"Zamknij"}, {"tr", u"Kapat"}};
        for (const auto &[language, close] : words)
            QTest::newRow(language) << QString::fromUtf16(close);
        QCOMPARE(std::size(words), static_cast<std::size_t>(textLanguages().size()));
    }
    void textsOfQtFollowTheLanguage()
    {
        QFETCH(QString, close);
        installTranslations(QString::fromLatin1(QTest::currentDataTag()));
        const QDialogButtonBox box(QDialogButtonBox::Close);
        const QString text = box.button(QDialogButtonBox::Close)->text().remove(u'&');
        installTranslations();
        QCOMPARE(text, close);
    }

    void picturesLookedUpLateAreTheStylesOwn()
    {
        std::unique_ptr<QStyle> style = std::make_unique<ProgramStyle>();
        QIcon late;
        for (const auto which :
             {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_LineEditClearButton}) {
            const QImage own =
                QApplication::style()->standardIcon(which).pixmap(QSize(16, 16)).toImage();
            QVERIFY(!own.isNull());
            late = style->standardIcon(which);
            QCOMPARE(style->standardIcon(which).pixmap(QSize(16, 16)).toImage(), own);
        }
        style.reset(); // the desktop has changed to another
        QVERIFY(!late.pixmap(QSize(16, 16)).isNull());
    }

    void fileThatDoesNotOpenLeavesAnEmptyWindow()
    {
        App app;
        app.preset.answerAlert(label("kOK"));
        const QString path = app.folder.filePath(QStringLiteral("none.tll"));
        app.delegate.applicationDidFinishLaunching({path});
        QTRY_VERIFY(app.preset.isSettled());
        QCOMPARE(app.preset.lastText(),
                 label("kOpenFailedMessage").arg(QStringLiteral("none.tll")) + u'\n' +
                     label("kFileMissingReason").arg(path));
        const QMainWindow *window = app.window();
        QVERIFY(window && part<QWidget>(*window, "emptyDocText").isVisible());
    }
};

QUILLET_TEST(WindowsTest)

#include "WindowsTest.moc"
