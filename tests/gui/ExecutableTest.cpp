#include "AppFixture.h"

#include "testing/TestMain.h"

#include <QImage>
#include <QProcess>
#include <QTest>

using namespace quillet::testing;

namespace {

/// Runs the program without a display.
struct Run
{
    explicit Run(const QStringList &arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(QLatin1String(name));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUILLET_EXECUTABLE), arguments);
        if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
            code = process.exitCode();
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
    }

    int code = -1; ///< of a crash as well
    QByteArray output, errors;
};

} // namespace

class ExecutableTest : public QObject
{
    Q_OBJECT

private slots:
    void answers()
    {
        const struct
        {
            const char *arguments;
            int code;
            const char *output, *errors; ///< contained; nothing at all when empty
        } cases[]{{"--help", 0, "--snapshot", ""},
                  {"--version", 0, "Quillet " QUILLET_VERSION, ""},
                  {"--unknown", 2, "", "unknown"},
                  {"--snapshot /nowhere/a.png /nowhere/a.tll", 1, "", "/nowhere/a.tll"}};
        for (const auto &[arguments, code, output, errors] : cases) {
            const Run run(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
            QVERIFY2(run.code == code, arguments);
            QVERIFY2(run.output.contains(output), run.output.constData());
            QVERIFY2(run.errors.contains(errors), run.errors.constData());
            QCOMPARE(run.output.isEmpty(), QByteArray(output).isEmpty());
        }
    }

    void snapshot()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.png"));
        const Run run(
            {QStringLiteral("--snapshot"), path, QStringLiteral(QUILLET_SAMPLES "/antenna.tll")});
        QVERIFY2(run.code == 0, run.errors.constData());
        const QImage image(path);
        QVERIFY(image.width() > 500 && image.width() < 2500);
        QVERIFY(image.height() > 300 && image.height() < 2000);
        QImage blank(image.size(), image.format());
        blank.fill(image.pixelColor(1, 1));
        QVERIFY(image != blank);
    }
};

QUILLET_TEST(ExecutableTest)

#include "ExecutableTest.moc"
