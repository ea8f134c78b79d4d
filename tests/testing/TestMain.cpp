#include "testing/TestMain.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <vector>

namespace {

std::vector<quillet::testing::TestRegistration::Factory> &factories()
{
    static std::vector<quillet::testing::TestRegistration::Factory> list;
    return list;
}

} // namespace

quillet::testing::TestRegistration::TestRegistration(Factory factory)
{
    factories().push_back(factory);
}

int main(int argc, char *argv[])
{
    // Settings, logs and recent files of a test run never reach the user's own, nor its programs
    // those of the user's session.
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath(QStringLiteral("data"))));
    qputenv("XDG_STATE_HOME", QFile::encodeName(home.filePath(QStringLiteral("state"))));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.filePath(QStringLiteral("config"))));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.path()));
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quillet-test"));
    QApplication::setOrganizationName(QStringLiteral("quillet-test"));
    int failed = 0;
    for (const auto factory : factories()) {
        const auto test = factory();
        failed += QTest::qExec(test.get(), argc, argv);
    }
    return failed == 0 ? 0 : 1;
}
