#include "EditorFixture.h"

#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#ifndef Q_OS_WIN
#include "files/OrdinaryUser.h"
#endif

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Three stations, the second with that name.
QByteArray listWith(const QString &name)
{
    return fileOf({makeStation(1, u"A"_s), makeStation(2, name), makeStation(3, u"C"_s)});
}

} // namespace

/// What the bar above the table says; texts are the ids here.
class NoticeTest : public QObject
{
    Q_OBJECT

private slots:
    void notices_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("offersRepair");
        const QByteArray whole = listWith(u"B"_s);
        QTest::newRow("healthy") << whole << QString() << false;
        QTest::newRow("damaged") << listWith(u"R & B"_s) << u"kNoticeDamaged kNoticeUnread"_s
                                 << true;
        QTest::newRow("damaged in the first") << QByteArray(whole).replace(">A<", ">A & <")
                                              << u"kNoticeDamagedFirst kNoticeUnread"_s << true;
        QTest::newRow("cut") << whole.chopped(5) << u"kNoticeDamaged kNoticeUnreadEnd"_s << true;
        QTest::newRow("beyond repair") << QByteArray(whole).replace("<vchName>B", "<vchNameB")
                                       << u"kNoticeDamaged kNoticeUnread"_s << false;
        QTest::newRow("two at once") << listWith(u"Té & lé"_s).replace("\xC3\xA9", "\xE9")
                                     << u"kNoticeDamaged kNoticeUnread\nkNoticeLatin1"_s << true;
        QTest::newRow("no number left")
            << fileOf(lettered({1, 16383, 16383})) << u"kNoticeBeyond"_s << false;
        QTest::newRow("binary") << QByteArray("\x01\0\x02", 3) << u"kNoticeBinary"_s << false;
        QTest::newRow("text") << "1;A;B\n"_ba << u"kNoticeNoXML"_s << false;
        const QByteArray json = "<TLLDATA><CHANNEL><legacybroadcast>{x}</legacybroadcast>"
                                "</CHANNEL></TLLDATA>";
        QTest::newRow("JSON") << json << u"kNoticeJSON"_s << false;
        QTest::newRow("JSON, cut")
            << json.first(json.indexOf("}")) << u"kNoticeDamagedLine\nkNoticeJSONCut"_s << false;
    }
    void notices()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        QFETCH(const bool, offersRepair);
        Editor editor({makeStation(1, u"A"_s)});
        QCOMPARE(editor.outlets.notice.text, QString());
        editor.show(bytes);
        QCOMPARE(editor.outlets.notice.text, text);
        QCOMPARE(editor.outlets.notice.offersRepair, offersRepair);
        QVERIFY(editor.outlets.notice.isWarning || text.isEmpty());
        editor.show(listWith(u"B"_s));
        QCOMPARE(editor.outlets.notice.text, QString());
    }

#ifndef Q_OS_WIN
    void writeProtectedFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.tll"_s);
        writeFile(path, listWith(u"B"_s));
        QVERIFY(OrdinaryUser::own(path) && OrdinaryUser::own(folder.path()));
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
        const OrdinaryUser user;
        if (!OrdinaryUser::isOne())
            QSKIP("the superuser may write everything");
        Editor editor({});
        editor.controller.loadTLLFile(path);
        QCOMPARE(editor.outlets.notice.text, u"kNoticeReadOnly"_s);
        QVERIFY(!editor.outlets.notice.isWarning);
        editor.document.setFileUrl(QUrl::fromLocalFile(folder.filePath(u"copy.tll"_s)));
        editor.controller.showNotice();
        QCOMPARE(editor.outlets.notice.text, QString());
    }
#endif

    void mendings()
    {
        const Mending mending{.ampersands = 1, .controls = 2, .endWasMissing = true};
        Editor editor({makeStation(1, u"A"_s)});
        QVERIFY(editor.document.readRepaired({listWith(u"B"_s), mending}, u"a.tll"_s));
        editor.controller.populateFromTLLDoc(editor.document, {});
        QCOMPARE(editor.outlets.notice.text,
                 u"kMendedTitle\nkMendedAmpersands kMendedControls kMendedEnd"_s);
        QVERIFY(!editor.outlets.notice.offersRepair && !editor.outlets.notice.isWarning);
        editor.show(listWith(u"B"_s));
        QCOMPARE(editor.outlets.notice.text, QString());
    }
};

QUILLET_TEST(NoticeTest)

#include "NoticeTest.moc"
