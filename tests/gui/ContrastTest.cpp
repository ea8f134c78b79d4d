#include "AppFixture.h"

#include "app/Palettes.h"
#include "editor/CheckMarkDelegate.h"
#include "editor/Contrast.h"
#include "editor/StationTableModel.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QLabel>
#include <QPainter>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// What is there can be seen, on a light and on a dark screen, and has a name where it is not.
class ContrastTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QApplication::setPalette(m_light); }

    void contrastIsReckoned()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
        const double grey = contrast(QColor(0x77, 0x77, 0x77), Qt::white); // known to be 4.48
        QVERIFY(grey > 4.47 && grey < 4.49);
    }

    void skippedStationsCanBeRead_data()
    {
        QTest::addColumn<bool>("isDark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void skippedStationsCanBeRead()
    {
        QFETCH(bool, isDark);
        isDark ? useDarkPalette() : useLightPalette();
        const QPalette palette = QApplication::palette();
        const QColor base = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
        const QColor other = palette.color(QPalette::AlternateBase);
        const QColor pale = faded(text, base, other);
        QVERIFY(qMin(contrast(pale, base), contrast(pale, other)) >= 4.5);
        QVERIFY(contrast(pale, base) < 6); // seen to be pale
        QCOMPARE(faded(QColor(0x80, 0x80, 0x80), base, other), QColor(0x80, 0x80, 0x80));
    }

    void emptyMarks_data()
    {
        QTest::addColumn<bool>("isDark");
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<bool>("isSkipped");
        for (const bool isDark : {false, true}) {
            for (const bool isSelected : {false, true}) {
                for (const bool isActive : {false, true}) {
                    QStyle::State state = QStyle::State_Enabled;
                    state.setFlag(QStyle::State_Selected, isSelected);
                    state.setFlag(QStyle::State_Active, isActive);
                    for (const bool isSkipped : {false, true}) {
                        QTest::addRow("%s, %s, %s%s", isDark ? "dark" : "light",
                                      isSelected ? "selected" : "plain",
                                      isActive ? "active" : "inactive",
                                      isSkipped ? ", skipped" : "")
                            << isDark << state << isSkipped;
                    }
                }
            }
        }
    }
    void emptyMarks()
    {
        QFETCH(bool, isDark);
        QFETCH(QStyle::State, state);
        QFETCH(bool, isSkipped);
        if (isDark)
            useDarkPalette();
        QStandardItemModel model(1, 1);
        model.setData(model.index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
        model.setData(model.index(0, 0), isSkipped, StationTableModel::SkippedRole);
        QImage image(60, 24, QImage::Format_RGB32);
        image.fill(QApplication::palette().color(QPalette::Base));
        QStyleOptionViewItem cell;
        cell.rect = image.rect();
        cell.state = state;
        cell.showDecorationSelected = true;
        cell.palette = QApplication::palette();
        {
            QPainter painter(&image);
            CheckMarkDelegate().paint(&painter, cell, model.index(0, 0));
        }
        const QRect mark = CheckMarkDelegate::markRect(nullptr, cell.rect);
        const QColor frame = image.pixelColor(mark.left(), mark.center().y());
        const double seen = contrast(frame, image.pixelColor(mark.center()));
        QVERIFY2(
            seen >= 3,
            qPrintable(u"%1 on %2: %3"_s.arg(frame.name(), image.pixelColor(mark.center()).name())
                           .arg(seen)));
    }

    void linkOfTheHint_data()
    {
        QTest::addColumn<bool>("isDark");
        QTest::addColumn<QColor>("link");
        QTest::newRow("light") << false << QColor(Qt::blue);
        QTest::newRow("dark") << true << QColor(0x6E, 0xA8, 0xFF);
        QTest::newRow("dark, with the link of a light palette") << true << QColor(Qt::blue);
    }
    void linkOfTheHint()
    {
        QFETCH(bool, isDark);
        QFETCH(QColor, link);
        App app;
        const QMainWindow *window = app.open("a.tll", listOf(2));
        QVERIFY(window);
        menuItem(*window, "useRadioClicked").trigger();
        if (isDark)
            useDarkPalette(); // while the window is open
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::Link, link);
        QApplication::setPalette(palette);
        const auto &hint = part<QLabel>(*window, "emptyDocText");
        static const QRegularExpression style(u"<a [^>]*color:(#[0-9a-f]+)"_s);
        const auto colorNow = [&hint] { return QColor(style.match(hint.text()).captured(1)); };
        QTRY_VERIFY(contrast(colorNow(), hint.palette().color(QPalette::Base)) >= 4.5);
    }

    void nothingIsBlackOnBlack()
    {
        QApplication::setPalette(QPalette(Qt::black, Qt::black)); // with what Qt reckons from that
        mendPalette();
        const QPalette palette = QApplication::palette();
        for (const auto ink : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            QVERIFY(contrast(palette.color(QPalette::Disabled, ink), Qt::black) >= 3);
        QVERIFY(contrast(palette.color(QPalette::Mid), Qt::black) >= 3); // the frames
        const QPalette field = QApplication::palette("QLineEdit");
        const QColor ground = field.color(QPalette::Base);
        QVERIFY(contrast(ground, Qt::black) >= 1.5);
        QVERIFY(contrast(field.color(QPalette::PlaceholderText), ground) >= 4.5);
        QVERIFY(contrast(field.color(QPalette::Text), ground) >= 7);
    }

private:
    QPalette m_light = QApplication::palette();
};

QUILLET_TEST(ContrastTest)

#include "ContrastTest.moc"
