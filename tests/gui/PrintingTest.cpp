#include "AppFixture.h"

#include "app/Snapshot.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QRegularExpression>
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

} // namespace

class PrintingTest : public QObject
{
    Q_OBJECT

private slots:
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

    void longListsTakeMorePages()
    {
        const qsizetype count = print(400).size();
        QVERIFY2(count > 4 && count < 40, qPrintable(QString::number(count)));
    }

private:
    /// What the list's window prints; the window must look as before afterwards.
    QByteArrayList print(int stations)
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(stations));
        if (!window)
            return {};
        const QColor base = tableOf(*window).palette().color(QPalette::Base);
        const QString path = app.folder.filePath(QStringLiteral("a.pdf"));
        app.preset.answerPrintPanel(path);
        QTest::keyClick(window, Qt::Key_P, Qt::ControlModifier);
        [&] { QTRY_VERIFY(app.preset.isSettled()); }();
        [&] { QCOMPARE(tableOf(*window).palette().color(QPalette::Base), base); }();
        return pages(contentOf(path));
    }

    QPalette m_light = QApplication::palette();
};

QUILLET_TEST(PrintingTest)

#include "PrintingTest.moc"
