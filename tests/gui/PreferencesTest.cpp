#include "AppFixture.h"

#include "app/CommandLine.h"
#include "app/PreferencesDialog.h"
#include "document/TLLDocument.h"
#include "files/FileOperations.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"
#include "texts/StationColumns.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The window of the preferences, as the menu of that window opens it, with that page in front.
PreferencesDialog *preferences(const QWidget &window, const char *page)
{
    menuItem(window, "showPreferences").trigger();
    PreferencesDialog *found = nullptr;
    int count = 0;
    for (QWidget *each : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<PreferencesDialog *>(each)) {
            found = dialog;
            ++count;
        }
    }
    if (count != 1 || !QTest::qWaitForWindowActive(found))
        return nullptr;
    auto &pages = part<QTabWidget>(*found, "preferencesPages");
    for (int i = 0; i < pages.count(); ++i) {
        if (pages.widget(i)->isAncestorOf(&part<QWidget>(*found, page)))
            pages.setCurrentIndex(i);
    }
    return found;
}

QCheckBox &columnBox(const QWidget &dialog, const char *identifier)
{
    return part<QCheckBox>(part<QWidget>(dialog, "columns"), identifier);
}

bool isShown(const QWidget &window, ColumnContent content)
{
    return !tableOf(window).horizontalHeader()->isSectionHidden(columnOf(content));
}

} // namespace

/// What a person chooses holds at once, in every window.
class PreferencesTest : public QObject
{
    Q_OBJECT

private slots:
    void textSizeIsFollowed()
    {
        App app;
        QMainWindow *windows[]{app.open("a.tll", listOf(200)), app.open("b.tll", listOf(3))};
        QVERIFY(windows[0] && windows[1]);
        QTableView &longer = tableOf(*windows[0]);
        longer.setCurrentIndex(longer.model()->index(150, 1));
        const auto showsCurrent = [&longer] {
            return longer.viewport()->rect().contains(longer.visualRect(longer.currentIndex()));
        };
        const auto sizes = [&windows] {
            QList<double> found;
            for (const QMainWindow *window : windows) {
                const QTableView &table = tableOf(*window);
                found << table.font().pointSizeF() << table.horizontalHeader()->font().pointSizeF()
                      << table.rowHeight(0) << table.columnWidth(0);
            }
            return found;
        };
        const QList<double> usual = sizes();
        PreferencesDialog *dialog = preferences(*windows[0], "tablePage");
        QVERIFY(dialog);
        auto &size = part<QSpinBox>(*dialog, "table/textSize");
        size.setValue(200);
        for (qsizetype i = 0; i < usual.size(); ++i)
            QTRY_VERIFY(qAbs(sizes()[i] / usual[i] - 2) < 0.25);
        QVERIFY(showsCurrent());
        for (const QMainWindow *window : windows) // the hint over an empty table is none of it
            QCOMPARE(part<QWidget>(*window, "emptyDocText").font().pointSizeF(), usual[0]);
        menuItem(*windows[1], "largerText").trigger();
        QCOMPARE(size.value(), 210);
        menuItem(*windows[0], "normalText").trigger();
        QTRY_COMPARE(sizes(), usual);
        for (int i = 0; i < 20; ++i)
            menuItem(*windows[0], "smallerText").trigger();
        QCOMPARE(size.value(), 50);
        QVERIFY(!menuItem(*windows[1], "smallerText").isEnabled());
        part<QPushButton>(*dialog, "useUsual").click();
        QTRY_COMPARE(sizes(), usual);
        QVERIFY(!part<QPushButton>(*dialog, "useUsual").isEnabled());
    }

    void columnsAreFollowed()
    {
        constexpr ColumnContent type = ColumnContent::Type, blocked = ColumnContent::Blocked;
        App app;
        const QByteArray json = readSample(u"satellite-json.tll"_s);
        const QMainWindow *first = app.open("a.tll", listOf(3)),
                          *second = app.open("b.tll", listOf(3)), *other = app.open("j.tll", json);
        QVERIFY(first && second && other);
        tableOf(*first).setCurrentIndex(tableOf(*first).model()->index(1, columnOf(type)));
        PreferencesDialog *dialog = preferences(*first, "tablePage");
        QVERIFY(dialog);
        columnBox(*dialog, "visible").click();
        QVERIFY(!isShown(*first, type) && !isShown(*second, type) && isShown(*other, type));
        QVERIFY(isShown(*first, ColumnContent(tableOf(*first).currentIndex().column())));
        menuItem(*second, "blocked").trigger();
        QVERIFY(!isShown(*first, blocked) && !isShown(*first, type) && isShown(*other, blocked));
        QVERIFY(!columnBox(*dialog, "blocked").isChecked());
        part<QComboBox>(*dialog, "columnsKind").setCurrentIndex(1);
        QVERIFY(columnBox(*dialog, "blocked").isChecked());
        columnBox(*dialog, "satellite").click();
        QVERIFY(isShown(*other, ColumnContent::Satellite) &&
                !isShown(*first, ColumnContent::Satellite));
        part<QPushButton>(*dialog, "useUsual").click();
        QVERIFY(isShown(*first, type) && isShown(*second, blocked) &&
                !isShown(*other, ColumnContent::Satellite));
    }

    /// Of the whole program, by what lies on the disk.
    void keepingIsTurnedOffAndOn()
    {
        const QTemporaryDir state;
        FileOperations operations;
        RecoveryStore store(state.filePath(u"recovery"_s), operations);
        App app;
        app.delegate.keepChanges(store);
        const QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        auto &document = static_cast<TLLDocument &>(*app.delegate.documents().documents().front());
        const auto kept = [&document] {
            return document.versionStore()->versionsOf(document.fileUrl().toLocalFile()).size();
        };
        const auto edit = [&] {
            selectRows(*window, {0});
            menuItem(*window, "skipSelectedItems").trigger();
        };
        PreferencesDialog *dialog = preferences(*window, "savingPage");
        QVERIFY(dialog);
        auto &keepsVersions = part<QCheckBox>(*dialog, "versions/areKept"),
             &keepsChanges = part<QCheckBox>(*dialog, "recovery/isOn");
        keepsVersions.click();
        QVERIFY(!part<QSpinBox>(*dialog, "versions/count").isEnabled());
        keepsChanges.click();
        edit();
        QVERIFY(!app.delegate.writeRecovery());
        QVERIFY(store.leftovers().empty() && QDir(store.root()).isEmpty());
        keepsChanges.click();
        QVERIFY(app.delegate.writeRecovery());
        QVERIFY(!QDir(store.root()).isEmpty());
        document.saveDocument();
        QVERIFY(!document.isDirty() && kept() == 0);
        keepsVersions.click();
        part<QSpinBox>(*dialog, "versions/count").setValue(2);
        for (int i = 0; i < 5; ++i) {
            menuItem(*window, i % 2 == 0 ? "moveDown" : "skipSelectedItems").trigger();
            document.saveDocument();
        }
        QCOMPARE(kept(), std::size_t{3}); // with the first
    }

    void languageIsThatOfTheNextStart()
    {
        App app;
        const QMainWindow *window = app.open("a.tll", listOf(1));
        QVERIFY(window);
        QSettings().setValue(u"language"_s, u"de_AT"_s);
        app.delegate.settings().look();
        PreferencesDialog *dialog = preferences(*window, "generalPage");
        QVERIFY(dialog);
        auto &box = part<QComboBox>(*dialog, "language");
        QCOMPARE(box.currentText(), u"Deutsch"_s);
        const int polish = box.findText(u"Polski"_s);
        QVERIFY(polish > 0);
        box.setCurrentIndex(polish);
        emit box.activated(polish);
        QCOMPARE(QSettings().value(u"language"_s).toString(), u"pl"_s);
        box.setCurrentIndex(0);
        emit box.activated(0);
        QCOMPARE(app.delegate.settings().text(Setting::Language), QString());
    }

    void commandLineComesFirst_data()
    {
        QTest::addColumn<QStringList>("given");
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<QString>("used");
        const QStringList french{u"--language"_s, u"fr"_s};
        QTest::newRow("neither") << QStringList() << QString() << QString();
        QTest::newRow("preferred") << QStringList() << u"de"_s << u"de"_s;
        QTest::newRow("both") << french << u"de"_s << u"fr"_s;
        QTest::newRow("without texts") << QStringList() << u"xx"_s << QString();
    }
    void commandLineComesFirst()
    {
        QFETCH(QStringList, given);
        QFETCH(QString, preferred);
        QFETCH(QString, used);
        CommandLine line = CommandLine::parse(QStringList(u"quillet"_s) + given);
        line.preferLanguage(preferred);
        QCOMPARE(line.language, used);
        const qsizetype option = line.helpWindow.indexOf(u"--language"_s);
        QCOMPARE(option < 0 ? QString() : line.helpWindow.value(option + 1), used);
        QCOMPARE(line.helpWindow.count(u"--language"_s), used.isEmpty() ? 0 : 1);
    }
};

QUILLET_TEST(PreferencesTest)

#include "PreferencesTest.moc"
