#include "AppFixture.h"

#include "app/DesktopServices.h"
#include "document/TLLDocument.h"
#include "files/FileOperations.h"
#include "framework/WindowController.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QLabel>
#include <QMenu>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr FileSource satellite = FileSource::Satellite;

/// The program, which keeps changes where the next one finds them. It ends as one that is killed:
/// nobody is asked, and nothing is cleared away.
struct Run : App
{
    explicit Run(RecoveryStore &store) { delegate.keepChanges(store); }

    [[nodiscard]] TLLDocument &document(std::size_t index) const
    {
        const auto &open = const_cast<Run *>(this)->delegate.documents().documents();
        return static_cast<TLLDocument &>(*open.at(index));
    }
};

QDialog *dialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == u"recoveryDialog" && widget->isVisible())
            return qobject_cast<QDialog *>(widget);
    }
    return nullptr;
}

void press(const char *name)
{
    QVERIFY(dialog());
    part<QAbstractButton>(*dialog(), name).click();
}

QTableWidget &leftovers()
{
    return part<QTableWidget>(*dialog(), "recoveryList");
}

enum { shownList = 0, untouchedFile = 1 }; // in the next

/// Everything that makes a document what it is, as far as a person can tell.
QStringList contentOf(TLLDocument &document)
{
    Error error;
    const std::optional<Repair> &repair = document.repair();
    QStringList all{(document.usesTV() ? u"TV %1"_s : u"radio %1"_s).arg(document.curSource()),
                    document.untouchedUrl().toString(),
                    document.fileUrl().toString(),
                    document.suggestedUrl().toString(),
                    document.titleName(),
                    repair ? repair->fileName : QString(),
                    QString::number(repair ? repair->mending.ampersands : 0),
                    QString::number(document.isDirty()),
                    QString::fromUtf8(document.dataOfType(document.fileType(), error))};
    for (const bool isTV : {true, false}) {
        for (const StationSource source : stationSources) {
            for (const StationPtr &station : *document.lists().list(isTV, static_cast<int>(source)))
                all.append(QString::number(station->progNum()) + station->shownName());
        }
    }
    return all;
}

void changeFirst(const QWidget &window)
{
    selectRows(window, {0});
    menuItem(window, "skipSelectedItems").trigger();
    QVERIFY(window.isWindowModified());
}

} // namespace

/// What one run of the program leaves, and the next one brings back.
class RecoveryTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_store = std::make_unique<RecoveryStore>(m_folder->filePath(u"recovery"_s), m_operations);
    }

    void everythingComesBack()
    {
        std::vector<QStringList> left;
        {
            Run run(*m_store);
            const QMainWindow *mixed =
                run.open("both.tll", makeTLL({}, {makeStation(1, u"A"_s), makeStation(2, u"B"_s),
                                                  makeStation(1, u"R"_s, satellite, 2)})
                                         .toUtf8());
            QVERIFY(mixed);
            changeFirst(*mixed);
            menuItem(*mixed, "useRadioClicked").trigger();
            mixed->findChildren<QAction *>(u"sourceSegmentClicked"_s).at(1)->trigger();
            QMainWindow *json = run.open("json.tll", readSample(u"satellite-json.tll"_s));
            QVERIFY(json);
            changeFirst(*json);
            const QMainWindow *damaged =
                run.open("bad.tll", makeTLL({}, {makeStation(1, u"A & B"_s)}).toUtf8());
            QVERIFY(damaged);
            part<QAbstractButton>(*damaged, "noticeAction").click();
            const QMainWindow *copy = run.window(4);
            QVERIFY(copy);
            changeFirst(*copy);
            for (const std::size_t index : {0, 1, 3})
                left.push_back(contentOf(run.document(index)));
            QCOMPARE(left[0].at(shownList), u"radio 1"_s);
            QCOMPARE(left[2].at(untouchedFile).section(u'/', -1), u"bad.tll"_s);
        }
        Run next(*m_store);
        next.delegate.applicationDidFinishLaunching({});
        QVERIFY(dialog() && next.delegate.documents().documents().empty());
        QCOMPARE(leftovers().rowCount(), 3);
        QTest::keyClick(&leftovers(), Qt::Key_Return);
        QTRY_VERIFY(!dialog());
        QCOMPARE(next.delegate.documents().documents().size(), left.size());
        std::vector<QStringList> found;
        for (std::size_t index = 0; index < left.size(); ++index)
            found.push_back(contentOf(next.document(index)));
        for (const QStringList &each : left)
            QCOMPARE(std::count(found.begin(), found.end(), each), 1);
        QVERIFY(next.window(3) && next.window(3)->isWindowModified());
    }

    void laterAndDiscard()
    {
        leave({pathOf("a.tll"), pathOf("b.tll")});
        {
            Run run(*m_store);
            run.delegate.applicationDidFinishLaunching({});
            press("later");
            QTRY_VERIFY(run.window()); // an empty one
            QVERIFY(m_store->hasLeftovers());
            run.delegate.showUnsavedLists();
            leftovers().selectRow(1);
            const QString name = leftovers().item(1, 0)->text();
            run.preset.answerAlert(label("kCancel"));
            press("discard");
            QCOMPARE(run.preset.alerts().back().alert.message,
                     qtTrId("kDiscardOneMessage").arg(name));
            QTRY_VERIFY(run.preset.isSettled());
            QCOMPARE(leftovers().rowCount(), 2);
            run.preset.answerAlert(label("kDiscard"));
            press("discard");
            QTRY_COMPARE(leftovers().rowCount(), 1);
            QVERIFY(leftovers().item(0, 0)->text() != name);
            QVERIFY(part<QAbstractButton>(*dialog(), "bringBack").isEnabled());
        }
        QCOMPARE(m_store->leftovers().size(), std::size_t{1});
    }

    void folderIsShownToThePerson()
    {
        struct Desktop : DesktopServices
        {
            bool openUrl(const QUrl &url) override
            {
                opened = url;
                return false; // there is nothing to show folders with
            }
            QUrl opened;
        } desktop;
        Run run(*m_store);
        run.delegate.setSystemServices(desktop);
        const QMainWindow *window = run.open("a.tll", listOf(3));
        QVERIFY(window);
        menuItem(*window, "openRecoveryFolder").trigger();
        QCOMPARE(desktop.opened, QUrl::fromLocalFile(m_store->root()));
        QVERIFY(QDir(m_store->root()).exists());
        QVERIFY(run.preset.lastText().contains(m_store->root()));
        QCOMPARE(run.preset.alerts().back().window, window);
    }

    void damagedOnesAreShownAndKept()
    {
        leave({pathOf("a.tll")});
        const QString folder = m_store->leftovers().at(0).folder->path();
        writeFile(RecoveryFolder::pathIn(folder, RecoveryFolder::Part::Original), listOf(4));
        Run run(*m_store);
        run.delegate.applicationDidFinishLaunching({});
        press("bringBack");
        QVERIFY(run.delegate.documents().documents().empty());
        QVERIFY(run.preset.lastText().contains(label("kRecoveryDamagedReason")));
        QVERIFY(leftovers().item(0, 0)->text().contains(label("kRecoveryUnreadable")));
        QVERIFY(part<QLabel>(*dialog(), "recoveryDetail").text().contains(folder));
        QVERIFY(!part<QAbstractButton>(*dialog(), "bringBack").isEnabled());
        press("later");
        QVERIFY(QTest::qWaitFor([this] { return m_store->hasLeftovers(); }));
    }

    void fileThatIsOpenAlready()
    {
        Run run(*m_store);
        const QMainWindow *window = run.open("a.tll", listOf(3));
        QVERIFY(window);
        const QString path = run.document(0).fileUrl().toLocalFile();
        leave({path});
        changeFirst(*window);
        run.delegate.showUnsavedLists();
        press("bringBack");
        QVERIFY(run.preset.lastText().contains(label("kRecoveryOpenReason")));
        QCOMPARE(leftovers().rowCount(), 1);
        QCOMPARE(run.delegate.documents().documents().size(), std::size_t{1});

        run.document(0).history().undo();
        press("bringBack");
        QTRY_VERIFY(!dialog());
        QVERIFY(run.window() && run.window() != window);
        QVERIFY(run.document(0).isDirty());
        run.document(0).saveDocument();
        QTRY_VERIFY(!run.document(0).isDirty());
        QVERIFY(testing::contentOf(path) != listOf(3));
        QTRY_VERIFY(QDir(m_store->root()).isEmpty());
    }

    void latestOfOneFileComesBack()
    {
        for (const int stations : {3, 4})
            leave({pathOf("a.tll")}, stations);
        Run run(*m_store);
        run.delegate.applicationDidFinishLaunching({});
        press("bringBack");
        QCOMPARE(run.document(0).stationCount(), 4);
        QCOMPARE(leftovers().rowCount(), 1);
        QVERIFY(run.preset.lastText().contains(label("kRecoveryOlderReason")));
    }

    void programStaysForTheSheet()
    {
        leave({pathOf("a.tll")});
        Run run(*m_store);
        run.delegate.applicationDidFinishLaunching({run.write("b.tll", listOf(1))});
        QMainWindow *window = run.document(0).windowControllers().front()->window();
        emit part<QMenu>(*window, "fileMenu").aboutToShow();
        QVERIFY(menuItem(*window, "showUnsavedLists").isVisible());
        window->close();
        QVERIFY(run.delegate.documents().documents().empty());
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&loop] { loop.exit(1); });
        QCOMPARE(loop.exec(), 1); // the end of the program would have been sooner
        QVERIFY(run.delegate.mayOpen());
        press("later");
        QVERIFY(run.window());
        run.delegate.showUnsavedLists();
        run.delegate.terminate();
        QVERIFY(!run.delegate.mayOpen());
    }

private:
    /// Leaves the files, changed, as a run that is killed.
    void leave(const QStringList &paths, int stations = 3) const
    {
        Run run(*m_store);
        for (const QString &path : paths) {
            writeFile(path, listOf(stations));
            run.delegate.documents().openDocument(QUrl::fromLocalFile(path));
            changeFirst(*run.window(run.delegate.documents().documents().size()));
        }
    }
    [[nodiscard]] QString pathOf(const char *name) const
    {
        return m_folder->filePath(QString::fromLatin1(name));
    }

    FileOperations m_operations;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecoveryStore> m_store;
};

QUILLET_TEST(RecoveryTest)

#include "RecoveryTest.moc"
