#include "AppFixture.h"

#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <fstream>

using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Runs the program without a display and, when given, with other variables in its environment.
struct Run
{
    using Variables = std::vector<std::pair<QString, QString>>;
    explicit Run(const QStringList &arguments, const QString &folder = {},
                 const Variables &variables = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name :
             {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"})
            environment.remove(QLatin1String(name));
        for (const auto &[name, value] : variables)
            environment.insert(name, value);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder);
        process.start(QStringLiteral(QUILLET_EXECUTABLE), arguments);
        if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
            code = process.exitCode();
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
    }

    int code = -1; ///< of a crash as well
    QByteArray output, errors;
};

const QString sample = QStringLiteral(QUILLET_SAMPLES "/antenna.tll");

} // namespace

class ExecutableTest : public QObject
{
    Q_OBJECT

private slots:
    void answers_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QByteArray>("errors"); // contained; nothing at all when empty

        const auto row = [](const char *arguments, int code, const char *output,
                            const char *errors) {
            QTest::newRow(arguments) << code << QByteArray(output) << QByteArray(errors);
        };
        row("--help", 0, "Usage: quillet [options] [FILE...]", "");
        row("--help-all -platform offscreen", 0, "-stylesheet <file>", "");
        row("-platform", 2, "", "'-platform'");
        row("--version", 0, "Quillet " QUILLET_VERSION, "");
        row("-style --help -reverse --stylesheet=a.css --version", 0, "Quillet " QUILLET_VERSION,
            "");
        row("-reverse --unknown", 2, "", "'unknown'");
        row("-geometryy", 2, "", "'geometryy'");
        row("--language xx a.tll", 2, "", "\"xx\", only in de, en, es");
        row("--language C", 2, "", "\"C\", only in de, en, es");
        row("--language de_AT --version", 0, "Quillet", "");
        row("--language", 2, "", "'--language'");
        row("--a\tb", 2, "",
            "a\xef\xbf\xbd"
            "b");
        row("a.tll ", 2, "", "a name");
        row("--snapshot", 2, "", "'--snapshot'");
        row("--snapshot= a.tll", 2, "", "a picture");
        row("--snapshot /nowhere/a.png /nowhere/a.tll", 1, "", "/nowhere/a.tll");
        row("--snapshot /nowhere/a.png", 1, "", "/nowhere");
    }
    void answers()
    {
        QFETCH(int, code);
        QFETCH(QByteArray, output);
        QFETCH(QByteArray, errors);
        const QString arguments = QString::fromLatin1(QTest::currentDataTag());
        const Run run(arguments.split(QLatin1Char(' ')));
        QVERIFY2(run.code == code, run.errors.constData());
        QVERIFY2(run.output.contains(output), run.output.constData());
        QVERIFY2(run.errors.contains(errors), run.errors.constData());
        QCOMPARE(run.output.isEmpty(), output.isEmpty());
        QCOMPARE(run.errors.startsWith("quillet: "), !errors.isEmpty());
        QCOMPARE(run.errors.endsWith("\nTry 'quillet --help' for more information.\n"), code == 2);
        for (const QByteArray &line : run.output.split('\n'))
            QVERIFY2(line.size() <= 80, line.constData());
    }

    void placeThatShowsNoWindowsIsAnError()
    {
        const Run run({u"-platform"_s, u"none"_s});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.errors.contains("\nquillet: "), run.errors.constData());
    }

#ifndef Q_OS_WIN
    void helpThatCannotBePrintedIsAnError_data()
    {
        QTest::addColumn<QString>("redirection");
        QTest::newRow("closed") << u">&-"_s;
#ifdef Q_OS_LINUX
        QTest::newRow("full disk") << u">/dev/full"_s;
#endif
    }
    void helpThatCannotBePrintedIsAnError()
    {
        QFETCH(QString, redirection);
        QProcess shell;
        shell.start(u"/bin/sh"_s, {u"-c"_s, u"exec \"$0\" --help "_s + redirection,
                                   QStringLiteral(QUILLET_EXECUTABLE)});
        QVERIFY(shell.waitForFinished(60000));
        QCOMPARE(shell.exitCode(), 1);
        QVERIFY(shell.readAllStandardError().startsWith("quillet: "));
    }

    void fileThatMayNotGrowIsAnError()
    {
        const QTemporaryDir folder;
        QProcess limited;
        // GCC's counters of coverage would be cut as well.
        limited.start(
            u"/bin/sh"_s,
            {u"-c"_s,
             u"ulimit -f 1; export GCOV_PREFIX=/dev/null; exec \"$0\" --snapshot \"$1\" \"$2\""_s,
             QStringLiteral(QUILLET_EXECUTABLE), folder.filePath(u"a.png"_s),
             QStringLiteral(QUILLET_SAMPLES "/antenna.tll")});
        QVERIFY(limited.waitForFinished(60000));
        QCOMPARE(limited.exitStatus(), QProcess::NormalExit);
        QCOMPARE(limited.exitCode(), 1);
    }

    /// The log counts the stations of the files that a later start was given, too.
    void programIsStartedOnce()
    {
        const QTemporaryDir home;
        // A name that is no text.
        const QByteArray odd = QFile::encodeName(home.path()) + "/\xE4.tll";
        std::ofstream(odd.toStdString()) << readSample(u"antenna.tll"_s).toStdString();
        writeFile(home.filePath(u"b.txt"_s), readSample(u"antenna.tll"_s));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        for (const char *folder : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            environment.insert(QLatin1String(folder), home.path());
        const auto start = [&](QProcess &program, const QString &arguments) {
            program.setProcessEnvironment(environment);
            program.start(u"/bin/sh"_s, {u"-c"_s, u"cd \"$1\"; exec \"$0\" "_s + arguments,
                                         QStringLiteral(QUILLET_EXECUTABLE), home.path()});
        };
        const auto filesInLog = [&](const char *folder) {
            return contentOf(home.filePath(u"Logs/%1/XT.log"_s.arg(QLatin1String(folder))))
                .count("Radio[3] = ");
        };
        QProcess first, second, third, other;
        start(first, u"*.tll"_s);
        QTRY_COMPARE_WITH_TIMEOUT(filesInLog("quillet"), 1, 60000);
        QVERIFY(!contentOf(home.filePath(u"Logs/quillet/XT.log"_s)).contains("TV[2] = 0"));
        start(second, u"./b.txt"_s);
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 0);
        QTRY_COMPARE(filesInLog("quillet"), 2);

        start(other, u"--new-instance *.tll"_s);
        QTRY_COMPARE_WITH_TIMEOUT(filesInLog("quillet-2"), 1, 60000);
        QCOMPARE(::kill(static_cast<pid_t>(first.processId()), SIGSTOP), 0);
        start(third, u"*.tll"_s);
        QTRY_COMPARE_WITH_TIMEOUT(filesInLog("quillet-3"), 1, 60000);
        for (QProcess *program : {&first, &other, &third}) {
            program->kill();
            QVERIFY(program->waitForFinished());
        }
        QCOMPARE(filesInLog("quillet"), 2);
    }
#endif

    void snapshot()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a.png"));
        int lightness = 0;
        for (const bool isDark : {true, false}) { // the second in the place of the first
            QStringList arguments{QStringLiteral("--snapshot"), path, sample};
            if (isDark)
                arguments.prepend(QStringLiteral("--dark"));
            const Run run(arguments);
            QVERIFY2(run.code == 0 && run.errors.isEmpty(), run.errors.constData());
            const QImage image(path);
            QVERIFY(image.width() > 500 && image.width() < 2500);
            QVERIFY(image.height() > 300 && image.height() < 2000);
            QImage blank(image.size(), image.format());
            blank.fill(image.pixelColor(1, 1));
            QVERIFY(image != blank);
            QVERIFY(image.pixelColor(1, 1).lightness() > lightness + 20);
            lightness = image.pixelColor(1, 1).lightness() + 100;
        }
    }

    void neverPaintsOverAList_data()
    {
        QTest::addColumn<QString>("picture");
        for (const char *name : {"list.TLL", "new.Tll", "notes.txt", "empty.png", "link.png", "."})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void neverPaintsOverAList()
    {
        QFETCH(QString, picture);
        const QTemporaryDir folder;
        const QString list = folder.filePath(QStringLiteral("list.TLL"));
        QVERIFY(QFile::copy(sample, list));
        writeFile(folder.filePath(QStringLiteral("notes.txt")), "PNG");
        writeFile(folder.filePath(QStringLiteral("empty.png")), {});
        QVERIFY(QFile::link(folder.filePath(QStringLiteral("later.tll")),
                            folder.filePath(QStringLiteral("link.png"))));
        const QStringList before = QDir(folder.path()).entryList(QDir::AllEntries | QDir::System);
        const Run run({QStringLiteral("--snapshot"), picture, sample}, folder.path());
        QCOMPARE(run.code, 2);
        QVERIFY2(run.errors.startsWith("quillet: ") && run.errors.contains("picture"),
                 run.errors.constData());
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System), before);
        QCOMPARE(contentOf(list), contentOf(sample));
        QCOMPARE(contentOf(folder.filePath(QStringLiteral("notes.txt"))), QByteArray("PNG"));
    }

    /// The logs go elsewhere or nowhere.
    void needsNoFolderOfItsOwn_data()
    {
        QTest::addColumn<QString>("home");
        QTest::addColumn<QString>("data");
        QTest::newRow("not absolute") << QStringLiteral("home") << QStringLiteral("data");
        QTest::newRow("none") << QString() << QString();
        QTest::newRow("a file") << QStringLiteral("/dev/null") << QStringLiteral("/dev/null");
        QTest::newRow("not there") << QStringLiteral("/proc/no") << QStringLiteral("/proc/no");
    }
    void needsNoFolderOfItsOwn()
    {
        QFETCH(QString, home);
        QFETCH(QString, data);
        const QTemporaryDir folder;
        const Run run({QStringLiteral("--snapshot"), QStringLiteral("a.png"), sample},
                      folder.path(),
                      {{QStringLiteral("HOME"), home},
                       {QStringLiteral("XDG_CONFIG_HOME"), data},
                       {QStringLiteral("XDG_DATA_HOME"), data}});
        QVERIFY2(run.code == 0, run.errors.constData());
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{QStringLiteral("a.png")});
    }
};

QUILLET_TEST(ExecutableTest)

#include "ExecutableTest.moc"
