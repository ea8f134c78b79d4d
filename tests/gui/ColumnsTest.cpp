#include "AppFixture.h"

#include "testing/TLLText.h"
#include "testing/TestMain.h"
#include "texts/StationColumns.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString usual = u"progNum progName visible skipped blocked"_s;

/// The identifiers of the shown columns as they are read.
QString shown(const QWidget &window)
{
    const QHeaderView &header = *tableOf(window).horizontalHeader();
    QStringList found;
    for (int place = 0; place < header.count(); ++place) {
        if (const int column = header.logicalIndex(place); !header.isSectionHidden(column))
            found.append(stationColumns.at(std::size_t(column)).identifier);
    }
    return found.join(u' ');
}

void choose(const QWidget &window, const char *item)
{
    part<QMenu>(window, "columnsMenu").aboutToShow();
    menuItem(window, item).trigger();
}

int widthOf(const QWidget &window, ColumnContent content)
{
    return tableOf(window).horizontalHeader()->sectionSize(columnOf(content));
}

} // namespace

/// Which columns there are, as a person chooses them.
class ColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    void rememberedForEachVariant()
    {
        const QString chosen = u"progNum visible networkId progName skipped hidden"_s;
        const QByteArray cable = readSample(u"cable.tll"_s),
                         json = readSample(u"satellite-json.tll"_s);
        int width = 0;
        {
            App app;
            QMainWindow *window = app.open("a.tll", cable);
            QVERIFY(window);
            QCOMPARE(shown(*window), usual);
            for (const char *column : {"networkId", "hidden", "blocked"})
                choose(*window, column);
            QHeaderView &header = *tableOf(*window).horizontalHeader();
            header.moveSection(header.visualIndex(columnOf(ColumnContent::NetworkId)), 1);
            header.moveSection(header.visualIndex(columnOf(ColumnContent::Type)), 1);
            header.resizeSection(columnOf(ColumnContent::NetworkId), 150);
            width = widthOf(*window, ColumnContent::NetworkId);
            QCOMPARE(width, 150);
            QCOMPARE(shown(*window), chosen);
        }
        App app(nullptr, App::Settings::Kept);
        QMainWindow *other = app.open("j.tll", json);
        QVERIFY(other);
        QCOMPARE(shown(*other), usual);
        choose(*other, "satellite");
        QMainWindow *again = app.open("b.tll", cable);
        QVERIFY(again);
        QCOMPARE(shown(*again), chosen);
        QVERIFY(qAbs(widthOf(*again, ColumnContent::NetworkId) - width) <= 1);
        part<QMenu>(*again, "columnsMenu").aboutToShow();
        QVERIFY(!menuItem(*again, "blocked").isChecked());
        choose(*again, "useUsualColumns");
        QCOMPARE(shown(*again), usual);
        QMainWindow *third = app.open("k.tll", json);
        QVERIFY(third);
        QCOMPARE(shown(*third), usual + u" satellite"_s);
    }

    void reasonsAreSaid()
    {
        App app;
        const QMainWindow *window = app.open("a.tll", readSample(u"cable.tll"_s));
        QVERIFY(window);
        part<QMenu>(*window, "columnsMenu").aboutToShow();
        const QPair<const char *, QString> rows[] = {{"progNum", label("kTipColumnAlwaysShown")},
                                                     {"progName", label("kTipColumnAlwaysShown")},
                                                     {"satellite", label("kTipColumnNotTold")},
                                                     {"blocked", QString()},
                                                     {"frequency", QString()}};
        for (const auto &[name, reason] : rows) {
            QVERIFY(menuItem(*window, name).toolTip().contains(reason));
            QCOMPARE(menuItem(*window, name).isEnabled(), reason.isEmpty());
        }
    }

    /// Many columns leave the name readable, and the table is scrolled.
    void nameKeepsRoom()
    {
        App app;
        QMainWindow *window = app.open("a.tll", readSample(u"cable.tll"_s));
        QVERIFY(window);
        const int before = widthOf(*window, ColumnContent::Name);
        for (const char *column :
             {"networkId", "transportStreamId", "serviceId", "frequency", "hidden"})
            choose(*window, column);
        const QFontMetrics metrics = tableOf(*window).fontMetrics();
        QVERIFY(widthOf(*window, ColumnContent::Name) >= 20 * metrics.averageCharWidth());
        choose(*window, "useUsualColumns");
        QCOMPARE(widthOf(*window, ColumnContent::Name), before);
    }
};

QUILLET_TEST(ColumnsTest)

#include "ColumnsTest.moc"
