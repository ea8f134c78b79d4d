#include "AppFixture.h"

#include "app/Palettes.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QLineEdit>
#include <QPageRanges>
#include <QPrinter>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

namespace {

/// The drawing commands of every page of a PDF file.
QByteArrayList pages(const QByteArray &pdf)
{
    QByteArrayList pages;
    for (qsizetype at = 0; (at = pdf.indexOf("stream\n", at)) >= 0;) {
        at += 7;
        const qsizetype end = pdf.indexOf("endstream", at);
        const QByteArray packed = pdf.sliced(at, end - at);
        at = end + 9;
        if (!packed.startsWith('\x78')) // not compressed
            continue;
        // qUncompress wants the length before the data; any is good enough.
        const QByteArray content = qUncompress(QByteArray("\0\0\x10\0", 4) + packed);
        if (content.contains(" Tf") && content.contains("BT"))
            pages.append(content);
    }
    return pages;
}

using SetUp = std::function<void(QPrinter &)>;

} // namespace

Q_DECLARE_METATYPE(SetUp)

class PrintingTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }
    void cleanup() { QApplication::setPalette(m_light); }

    void darkScreenPrintsLight()
    {
        const QByteArrayList light = print(20);
        QCOMPARE(light.size(), 1);
        useDarkPalette();
        const QByteArrayList dark = print(20);
        QVERIFY(light == dark);
        // No ground or text is anything but dark on light: all colours are greys, with black.
        static const QRegularExpression fill(QStringLiteral("([\\d.]+) ([\\d.]+) ([\\d.]+) scn"));
        QSet<double> greys;
        for (auto match = fill.globalMatch(QString::fromLatin1(dark[0])); match.hasNext();) {
            const QStringList levels = match.next().capturedTexts();
            QCOMPARE(levels[1], levels[2]);
            QCOMPARE(levels[1], levels[3]);
            greys.insert(levels[1].toDouble());
        }
        QVERIFY(greys.remove(0));
        for (const double ground : greys)
            QVERIFY(ground > 0.9);
    }

    /// Every letter of a cell and a title is drawn once.
    void shownColumnsArePrintedInTheirOrder()
    {
        Item station = makeStation(1, QStringLiteral("A"));
        station.push_back({QStringLiteral("network_id"), QStringLiteral("77")});
        const QByteArray list = makeTLL({}, {station, station, station}).toUtf8();
        QByteArrayList printed;
        for (const char *columns :
             {"progNum,progName", "progNum,progName,networkId", "progNum,networkId,progName"}) {
            QString state = QLatin1String(columns) + QStringLiteral(",-visible,-skipped,-blocked");
            quillet::Settings().set(Setting::XMLColumns, state.split(u','));
            printed.append(print(list).value(0));
        }
        QCOMPARE(printed[1].count("Tj") - printed[0].count("Tj"),
                 label("kColumnNetworkId").size() + 3 * 2);
        QCOMPARE(printed[2].count("Tj"), printed[1].count("Tj"));
        QVERIFY(printed[2] != printed[1]);
    }

    /// Pages are told apart by how much is written on them.
    void pagesAreThoseChosen_data()
    {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<SetUp>("setUp");
        QTest::addColumn<QList<qsizetype>>("chosen"); // of all; none: a page of their own
        const SetUp fromTo = [](QPrinter &printer) {
            printer.setPrintRange(QPrinter::PageRange);
            printer.setFromTo(2, 4);
        };
        const SetUp single = [](QPrinter &printer) {
            printer.setPrintRange(QPrinter::PageRange);
            printer.setPageRanges(QPageRanges::fromString(QStringLiteral("1,3-4,900")));
        };
        const SetUp current = [](QPrinter &printer) {
            printer.setPrintRange(QPrinter::CurrentPage);
        };
        const SetUp selection = [](QPrinter &printer) {
            printer.setPrintRange(QPrinter::Selection);
        };
        for (const char *form : {"printDocument", "printCompact"}) {
            const auto row = [form](const char *name, const SetUp &setUp,
                                    const QList<qsizetype> &chosen) {
                QTest::addRow("%s, %s", form, name) << QByteArray(form) << setUp << chosen;
            };
            row("from to", fromTo, {1, 2, 3});
            row("single ones", single, {0, 2, 3});
            row("current", current, {2});
            row("selection", selection, {});
        }
    }
    void pagesAreThoseChosen()
    {
        QFETCH(QByteArray, form);
        QFETCH(SetUp, setUp);
        QFETCH(QList<qsizetype>, chosen);
        const bool isCompact = form == "printCompact";
        const int stations = isCompact ? 2200 : 200;
        const auto written = [&](const SetUp &wanted) {
            QList<qsizetype> letters;
            const QByteArrayList printed =
                print(listOf(stations), wanted, form.constData(), stations / 2);
            for (const QByteArray &page : printed)
                letters.append(page.count("Tj"));
            return letters;
        };
        const QList<qsizetype> all = written({});
        QVERIFY2(all.size() > 3 && all.size() < 10, qPrintable(QString::number(all.size())));
        const QList<qsizetype> some = written(setUp);
        if (chosen.isEmpty()) {
            QCOMPARE(some.size(), 1);
            QVERIFY(some.front() < all.front() / 4);
            return;
        }
        QList<qsizetype> expected;
        for (const qsizetype page : chosen)
            expected.append(all[page]);
        QCOMPARE(some, expected);
    }

    /// Two pages where the table takes nine; what is cut, faded or marked costs no station.
    void compactFormTakesFewPages()
    {
        std::vector<Item> stations;
        for (int number = 1; number <= 330; ++number) {
            stations.push_back(makeStation(number, QStringLiteral("Station %1").arg(number)));
            stations.back().push_back(
                {QStringLiteral("isSkipped"), QString::number(number % 7 == 0)});
            stations.back().push_back(
                {QStringLiteral("isBlocked"), QString::number(number % 5 == 0)});
        }
        stations.front() = makeStation(1, QString(40, u'W'));
        const QByteArrayList printed = print(makeTLL({}, stations).toUtf8(), {}, "printCompact");
        QVERIFY2(printed.size() <= 2, qPrintable(QString::number(printed.size())));
        // The letters of "Station", digits for name and number; the long name is cut to a third.
        const qsizetype letters = 329 * 8 + 2 * (9 + 180 + 3 * 231);
        const qsizetype drawn = printed.join().count("Tj");
        QVERIFY2(drawn > letters && drawn < letters + 200, qPrintable(QString::number(drawn)));
    }

    /// The heading is the only text of which there is more.
    void narrowedRowsSayByWhat()
    {
        const auto printed = [](const QString &search) {
            App app;
            QMainWindow *window = app.open("a.tll", listOf(3));
            part<QLineEdit>(*window, "searchText").setText(search);
            app.preset.answerPrintPanel(app.folder.filePath(QStringLiteral("a.pdf")));
            menuItem(*window, "printDocument").trigger();
            [&] { QTRY_VERIFY(app.preset.isSettled()); }();
            return pages(contentOf(app.folder.filePath(QStringLiteral("a.pdf")))).value(0);
        };
        const qsizetype of3 = printed(QString()).count("Tj");
        const qsizetype narrowed = printed(QStringLiteral("Station")).count("Tj");
        QCOMPARE(narrowed - of3,
                 label("kPrintedFiltered").size() - 2 + label("kPrintedSearch").size() - 2 + 7 + 3);
    }

    void failureIsSaid_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<bool>("hasPages");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no such page") << "a.pdf" << false << "kNoSuchPageReason";
        QTest::newRow("no folder") << "none/a.pdf" << true << "kCreateFailedReason";
        QTest::newRow("the list") << "a.tll" << true << "kOwnFileReason";
        QTest::newRow("no file") << "/dev/full" << true << "kPrintToFileFailedMessage";
    }
    void failureIsSaid()
    {
        QFETCH(QString, place);
        QFETCH(bool, hasPages);
        QFETCH(QString, reason);
        for (const char *form : {"printDocument", "printCompact"}) {
            App app;
            QMainWindow *window = app.open("a.tll", listOf(3));
            if (!hasPages)
                app.preset.setUpPrinter = [](QPrinter &printer) {
                    printer.setPrintRange(QPrinter::PageRange);
                    printer.setFromTo(7, 8);
                };
            app.preset.answerAlert(label(hasPages ? "kCancel" : "kOK"));
            app.preset.answerPrintPanel(QDir(app.folder.path()).absoluteFilePath(place));
            menuItem(*window, form).trigger();
            QTRY_VERIFY(app.preset.isSettled());
            const QString said = label(reason.toLatin1().constData()).section(u'%', 0, 0);
            QVERIFY(app.preset.lastText().contains(said));
            QVERIFY(!app.preset.printPanels().front().hasSelection);
        }
    }

private:
    /// What the list's window prints; the window must look as before afterwards.
    QByteArrayList print(int stations, const SetUp &setUp = {})
    {
        return print(listOf(stations), setUp);
    }
    QByteArrayList print(const QByteArray &list, const SetUp &setUp = {},
                         const char *form = nullptr, int row = 3)
    {
        App app(nullptr, App::Settings::Kept);
        app.preset.setUpPrinter = setUp;
        QMainWindow *window = app.open("a.tll", list);
        if (!window)
            return {};
        const QColor base = tableOf(*window).palette().color(QPalette::Base);
        const QString path = app.folder.filePath(QStringLiteral("a.pdf"));
        selectRows(*window, {1, row});
        app.preset.answerPrintPanel(path);
        if (form)
            menuItem(*window, form).trigger();
        else
            QTest::keyClick(window, Qt::Key_P, Qt::ControlModifier);
        [&] { QTRY_VERIFY(app.preset.isSettled()); }();
        [&] { QCOMPARE(tableOf(*window).palette().color(QPalette::Base), base); }();
        return pages(contentOf(path));
    }

    QPalette m_light = QApplication::palette();
};

QUILLET_TEST(PrintingTest)

#include "PrintingTest.moc"
