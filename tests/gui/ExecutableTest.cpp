#include "AppFixture.h"

#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QImage>
#include <QProcess>
#include <QTest>

#include <fstream>

using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

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

#ifndef Q_OS_WIN
    void fileThatMayNotGrowIsAnError()
    {
        const QTemporaryDir folder;
        QProcess limited;
        limited.start(u"/bin/sh"_s,
                      {u"-c"_s, u"ulimit -f 1; exec \"$0\" --snapshot \"$1\" \"$2\""_s,
                       QStringLiteral(QUILLET_EXECUTABLE), folder.filePath(u"a.png"_s),
                       QStringLiteral(QUILLET_SAMPLES "/antenna.tll")});
        QVERIFY(limited.waitForFinished(60000));
        QCOMPARE(limited.exitStatus(), QProcess::NormalExit);
        QCOMPARE(limited.exitCode(), 1);
    }

    void logCountsTheStationsOfTheFirstFile()
    {
        const QTemporaryDir home;
        // A name that is no text.
        const QByteArray odd = QFile::encodeName(home.path()) + "/\xE4.tll";
        std::ofstream(odd.toStdString()) << readSample(u"antenna.tll"_s).toStdString();
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        program.setProcessEnvironment(environment);
        program.start(u"/bin/sh"_s, {u"-c"_s, u"cd \"$1\"; exec \"$0\" *.tll"_s,
                                     QStringLiteral(QUILLET_EXECUTABLE), home.path()});
        QTRY_VERIFY_WITH_TIMEOUT(
            contentOf(home.filePath(u"Logs/quillet/XT.log"_s)).contains("Radio[3] = "), 60000);
        program.kill();
        QVERIFY(program.waitForFinished());
        QVERIFY(!contentOf(home.filePath(u"Logs/quillet/XT.log"_s)).contains("TV[2] = 0"));
    }
#endif

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
