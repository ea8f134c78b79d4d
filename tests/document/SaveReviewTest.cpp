#include "ListText.h"
#include "MadeUpLists.h"

#include "document/SaveReview.h"
#include "document/repair/RepairedWriter.h"
#include "files/Settings.h"
#include "testing/PresetPrompts.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

namespace {

/// A list in a file of its own, opened with somebody to ask.
struct Shown
{
    explicit Shown(const QString &text) : before(text.toUtf8())
    {
        writeFile(path(), before);
        document.setPrompts(&prompts);
        document.setSettings(&settings);
        Error error;
        if (!document.readFromUrl(QUrl::fromLocalFile(path()), TLLDocument::typeName(), error))
            qFatal("the list of the test is not one");
    }
    [[nodiscard]] QString path(const QString &name = u"list.tll"_s) const
    {
        return folder.filePath(name);
    }
    [[nodiscard]] bool save()
    {
        const auto isSaved = std::make_shared<bool>(false); // may be told later
        document.saveDocument([isSaved](bool saved) { *isSaved = saved; });
        return *isSaved;
    }

    QByteArray before;
    QTemporaryDir folder;
    PresetPrompts prompts{PresetPrompts::Arrival::AtOnce};
    Settings settings;
    TLLDocument document;
};

} // namespace

/// What a person is asked when a save would lose something, and what comes of the answers.
class SaveReviewTest : public QObject
{
    Q_OBJECT

private slots:
    /// Nobody is asked again only where nothing is lost.
    void offersAlwaysWhereRepairIsClean()
    {
        Rehearsal plain, partly;
        plain.missing.count = 2;
        partly.missing.count = 1;
        const auto box = [&plain](const Rehearsal &repaired) {
            return reviewOfSave({}, plain, repaired, SaveReview::Kind::JSONList).alert.checkBox;
        };
        QVERIFY(!box({}).isEmpty());
        QVERIFY(box(partly).isEmpty());
    }

    void asksBeforeSaving_data()
    {
        QTest::addColumn<QString>("name"); // given to the second of three stations
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("writing");
        const QString repaired = u"kSaveRepaired"_s, without = u"kSaveWithout"_s,
                      cancel = u"kCancel"_s, anyway = u"kSaveAnyway"_s;
        QTest::newRow("nothing lost") << u"Bravo"_s << QStringList() << QString() << u"plain"_s;
        const QStringList all{repaired, without, cancel};
        QTest::newRow("repaired") << u"R&B"_s << all << repaired << u"repaired"_s;
        QTest::newRow("anyway") << u"R&B"_s << all << without << u"plain"_s;
        QTest::newRow("cancelled") << u"R&B"_s << all << cancel << QString();
        QTest::newRow("no station lost")
            << u"<x/>"_s << QStringList{repaired, anyway, cancel} << anyway << u"plain"_s;
        QTest::newRow("export") << u"R&B"_s << QStringList{cancel, without} << without
                                << u"export"_s;
        QTest::newRow("export, cancelled")
            << u"R&B"_s << QStringList{cancel, without} << cancel << QString();
    }
    void asksBeforeSaving()
    {
        QFETCH(const QString, name);
        QFETCH(const QStringList, buttons);
        QFETCH(const QString, answer);
        QFETCH(const QString, writing);
        Shown shown(digital(items({u"A"_s, u"B"_s, u"C"_s})));
        TLLDocument &document = shown.document;
        rename(name)(document);
        document.setDirtyFlag(true);
        if (!answer.isEmpty())
            shown.prompts.answerAlert(answer); // without translations the title is the id
        const bool isExport = buttons.size() == 2;
        if (isExport) {
            shown.prompts.answerSavePanel(shown.path(u"copy.txt"_s));
            document.exportAsReferenceList();
        } else {
            QCOMPARE(shown.save(), !writing.isEmpty());
        }
        QCOMPARE(document.isDirty(), writing.isEmpty() || isExport);
        QCOMPARE(shown.prompts.alerts().empty(), buttons.isEmpty());
        if (!buttons.isEmpty())
            QCOMPARE(shown.prompts.alerts().front().alert.buttons, buttons);
        QVERIFY(shown.prompts.isSettled());
        if (isExport) {
            QCOMPARE(shown.prompts.savePanels().front().suggestedPath, shown.path(u"list.txt"_s));
            QCOMPARE(contentOf(shown.path(u"copy.txt"_s)),
                     writing.isEmpty() ? QByteArray("<cannot be read>") : written(document));
        }
        const QByteArray expected = writing == u"repaired"_s ? repairedTLL(document.list())
                                    : writing == u"plain"_s  ? written(document)
                                                             : shown.before;
        QVERIFY(contentOf(shown.path()) == expected);
    }

    /// A long list is looked through beside the thread that goes on editing it.
    void savesALongListAsItWas_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << u"Bravo"_s;
        QTest::newRow("repaired") << u"R&B"_s;
    }
    void savesALongListAsItWas()
    {
        QFETCH(const QString, name);
        QStringList names;
        for (int i = 0; i < 8000; ++i)
            names.append(u"Station "_s + QString::number(i));
        Shown shown(digital(items(names)));
        TLLDocument &document = shown.document;
        rename(name)(document);
        const bool isRepaired = name.contains(u'&');
        const QByteArray asked = isRepaired ? repairedTLL(document.list()) : written(document);
        if (isRepaired)
            shown.prompts.answerAlert(u"kSaveRepaired"_s);
        document.setDirtyFlag(true);
        QVERIFY(!shown.save() && document.isBeingMade());
        for (const FiledStation &filed : document.lists().roll())
            filed.station->setStationName(u"Later"_s);
        document.setDirtyFlag(true);
        QTRY_VERIFY(!document.isBeingMade());
        QVERIFY(shown.prompts.isSettled());
        QVERIFY(contentOf(shown.path()) == asked);
        QVERIFY(document.isDirty());
    }

    void keepsToTheRepairedForm()
    {
        QSettings().clear();
        const QString jsonList = legacy({channel(u"B"_s, 5), u"null"_s, channel(u"A"_s, 3)});
        Shown plain(digital(items({u"A"_s, u"B"_s, u"C"_s}))), json(jsonList);
        rename(u"R&B"_s)(plain.document);
        for (Shown *shown : {&plain, &json}) {
            shown->document.switchToSource(0);
            const QSignalSpy told(&shown->document, &Document::told);
            shown->prompts.answerAlertChecked(u"kSaveRepaired"_s);
            for (int i = 0; i < 3; ++i) { // only the first time there is a question
                station(shown->document, true, 0, 0)->setSkipped(i % 2 == 0);
                QVERIFY(shown->save());
                QVERIFY(shown->prompts.isSettled());
                QCOMPARE(told.back().front().toString().contains(u"kToldRepaired"_s), i > 0);
                QVERIFY(contentOf(shown->path()) == repairedTLL(shown->document.list()));
            }
            QCOMPARE(shown->prompts.alerts().front().alert.checkBox.isEmpty(), shown == &plain);
        }
        // The box in the sheet of the JSON list spoke for all of them, and for no other list.
        Shown second(jsonList), other(digital(items({u"A"_s, u"B"_s, u"C"_s})));
        second.document.switchToSource(0);
        QVERIFY(second.save());
        QVERIFY(second.prompts.alerts().empty());
        rename(u"R&B"_s)(other.document);
        other.prompts.answerAlert(u"kCancel"_s);
        QVERIFY(!other.save());
        QSettings().clear();
    }
};

QUILLET_TEST(SaveReviewTest)

#include "SaveReviewTest.moc"
