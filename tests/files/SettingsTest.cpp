#include "files/Settings.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }

    void anythingIsUnderstood_data()
    {
        QTest::addColumn<Setting>("setting");
        QTest::addColumn<QVariant>("there");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *name, Setting setting, const QVariant &there,
                            const QVariant &value) {
            QTest::newRow(name) << setting << there << value;
        };
        row("nothing", Setting::TextSize, {}, 100);
        row("a number", Setting::TextSize, u"150"_s, 150);
        row("with blanks and decimals", Setting::TextSize, u" 149.6 "_s, 150);
        row("no number", Setting::TextSize, u"large"_s, 100);
        row("not a number", Setting::TextSize, u"nan"_s, 100);
        row("too small", Setting::TextSize, u"-7"_s, 50);
        row("too large", Setting::VersionCount, u"1e300"_s, 100);
        row("a list", Setting::VersionCount, QStringList{u"3"_s, u"4"_s}, 10);
        row("a flag", Setting::KeepsChanges, false, false);
        row("a word", Setting::KeepsChanges, u" Off"_s, false);
        row("a digit", Setting::RepairsJSONLists, u"1"_s, true);
        row("no flag", Setting::KeepsVersions, u"perhaps"_s, true);
        row("bytes", Setting::KeepsVersions, QByteArray("\0\xff", 2), true);
        row("one of a list", Setting::XMLColumns, u"progNum"_s, QStringList{u"progNum"_s});
    }
    void anythingIsUnderstood()
    {
        QFETCH(Setting, setting);
        QFETCH(QVariant, there);
        QFETCH(QVariant, value);
        const auto now = [setting](const Settings &settings) -> QVariant {
            switch (Settings::factsOf(setting).kind) {
            case SettingKind::Flag:
                return settings.isOn(setting);
            case SettingKind::Number:
                return settings.number(setting);
            default:
                return settings.texts(setting);
            }
        };
        Settings running;
        QList<Setting> told;
        connect(&running, &Settings::changed, this, [&](Setting each) { told.append(each); });
        const QVariant before = now(running);
        if (there.isValid()) // else there is no file
            QSettings().setValue(Settings::factsOf(setting).key, there);
        QCOMPARE(now(Settings()), value);
        QCOMPARE(now(running), before);
        running.look();
        QCOMPARE(now(running), value);
        QCOMPARE(told, value == before ? QList<Setting>() : QList{setting});
        // What the program is asked to set is treated alike.
        running.useUsual({setting});
        QVERIFY(running.isUsual(setting) && now(Settings()) == now(running));
        running.set(setting, there);
        QCOMPARE(now(Settings()), value);
    }

    /// Else versions that the person wants would go at the next save.
    void fileOutOfReachChangesNothing()
    {
        Settings settings;
        settings.set(Setting::VersionCount, 50);
        const QString path = QSettings().fileName();
        QVERIFY(QFile::rename(path, path + u'~') && QDir().mkdir(path));
        settings.look();
        QVERIFY(QDir().rmdir(path) && QFile::rename(path + u'~', path));
        QCOMPARE(settings.number(Setting::VersionCount), 50);
    }

    void versionsAreLimited()
    {
        Settings settings;
        settings.set(Setting::VersionSpace, 10000);
        settings.set(Setting::KeepsVersions, false);
        const VersionLimits limits = Settings().versionLimits();
        QVERIFY(!limits.areKept && limits.later == VersionLimits().later);
        QCOMPARE(limits.bytes, qint64{10'485'760'000});
    }
};

QUILLET_TEST(SettingsTest)

#include "SettingsTest.moc"
