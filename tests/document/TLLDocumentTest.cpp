#include "ListText.h"

#include "document/TLLWindowController.h"
#include "support/KXFileLog.h"
#include "testing/TLLText.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

class CountingWindowController : public TLLWindowController
{
public:
    CountingWindowController() : TLLWindowController(std::make_unique<QMainWindow>(), u"counting"_s)
    {
    }
    void refill() override {}
    bool validateUserInterfaceItem(const QString &) const override { return false; }
    bool populateFromTLLDoc(TLLDocument &, const Error &) override { return ++populated > 0; }

    static inline int populated = 0;
};

QString inChannel(const QString &content)
{
    return u"<TLLDATA><CHANNEL>"_s + content + u"</CHANNEL></TLLDATA>"_s;
}

const auto Analogue = FileSource::Analogue, Cable = FileSource::Cable;
const auto Satellite = FileSource::Satellite, Antenna = FileSource::Antenna;

} // namespace

class TLLDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    /// A text that begins with a zero is UTF-16, though the bytes could be UTF-8 as well.
    void firstByteTellsTheEncoding()
    {
        QCOMPARE(FileText::decode(QByteArray("\0<", 2))->encoding(), TextEncoding::Utf16);
        QCOMPARE(FileText::decode(QByteArray("<\0", 2))->encoding(), TextEncoding::Utf8);
        QCOMPARE(FileText::decode("\xFE\xFF")->encoding(), TextEncoding::Latin1);
    }

    void filesStations()
    {
        const std::vector<Item> analogue{makeStation(1, u"Old"_s, Analogue),
                                         makeStation(16385, u"FM"_s, Analogue, 2)};
        // clang-format off
        const std::vector<Item> digital{
            makeStation(3, u"C"_s, Cable), makeStation(1, u"S1"_s, Satellite, 25),
            makeStation(1, u"S2"_s, Satellite), makeStation(2, u"T"_s, Antenna, 16),
            makeStation(16386, u"R"_s, Cable, 10), makeStation(7, u"?"_s, Cable, 99),
            {{u"vchName"_s, u"Lost"_s}}, makeStation(2, u"B"_s, Cable)};
        // clang-format on
        TLLDocument document;
        QVERIFY(read(document, makeTLL(analogue, digital)));
        const QStringList expected{u"TV0 2 B"_s,         u"TV0 3 C"_s,    u"TV1 1 S1"_s,
                                   u"TV1 2 S2"_s,        u"TV2 2 T"_s,    u"TV3 1 Old"_s,
                                   u"Radio0 16386 R"_s,  u"Radio0 7 ?"_s, u"Radio3 16385 FM"_s,
                                   u"Radio3 9999 Lost"_s};
        QCOMPARE(listText(document), expected);
        QCOMPARE(document.digitalStations(), 7);
        QCOMPARE(document.analogStations(), 3);
        // Each section counts its stations from 0.
        QCOMPARE(document.lists().list(true, 0)->front()->origPos(), 7);
        QCOMPARE(document.lists().list(false, 3)->front()->origPos(), 1);
        QVERIFY(!document.docUsesCRLF() && !document.list().parseError && !document.isDirty());
    }

    void acceptsAndRejects_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count"); // -1: bad file format
        const QString item = makeItem(makeStation(1, u"A"_s)), x = u"<x>1</x>"_s;
        const auto row = [](const char *name, const QString &content, int count) {
            QTest::newRow(name) << inChannel(content) << count;
        };
        QTest::newRow("no CHANNEL") << u"<TLLDATA><x/></TLLDATA>"_s << 0;
        row("empty CHANNEL", u" "_s, 0);
        row("text in CHANNEL", u"x"_s, 0);
        row("empty sections", u"<ATV/><DTV> </DTV>"_s, 0);
        row("no ITEM", u"<DTV>"_s + x + u"</DTV>"_s, 0);
        row("empty ITEM", u"<DTV><ITEM></ITEM></DTV>"_s, 0);
        row("text in ITEM", u"<DTV><ITEM>x</ITEM></DTV>"_s, 0);
        row("text in ATV", u"<ATV>x</ATV><DTV>"_s + item + u"</DTV>"_s, -1);
        row("text in DTV", u"<DTV>x</DTV>"_s, -1);
        row("DTV twice", u"<DTV>%1</DTV><DTV>%1</DTV>"_s.arg(item), -1);
        row("one ITEM", u"<DTV>"_s + item + u"</DTV>"_s, 1);
        row("two ITEMs", u"<DTV>"_s + item + item + u"</DTV>"_s, 2);
        row("DTV before ATV", u"<DTV>%1</DTV><ATV>%1</ATV>"_s.arg(item), 2);
        // A section is looked for only when the lists it stands for have stations.
        row("far ITEM in the other section", u"<ATV>     %1</ATV><DTV>%1</DTV>"_s.arg(item), 2);
        for (int gap = 0; gap <= 5; ++gap) {
            const TLLOptions options{.beforeFirstItem = QString(gap, u' ')};
            const int count = gap < 5 ? 1 : -1;
            QTest::addRow("ATV, gap %d", gap)
                << makeTLL({makeStation(1, u"A"_s, Analogue)}, {}, options) << count;
            QTest::addRow("DTV, gap %d", gap)
                << makeTLL({}, {makeStation(1, u"A"_s)}, options) << count;
        }
    }

    void acceptsAndRejects()
    {
        QFETCH(const QString, text);
        QFETCH(const int, count);
        TLLDocument document;
        Error error;
        QCOMPARE(document.readFromData(text.toUtf8(), u"the type"_s, error), count >= 0);
        QCOMPARE(error.isEmpty(), count >= 0);
        // Read in the place of another list, it leaves that one whole unless it can be read.
        const QByteArray before = makeTLL({}, {makeStation(7, u"Before"_s)}).toUtf8();
        TLLDocument shown;
        QVERIFY(read(shown, before));
        QCOMPARE(shown.replaceContent(text.toUtf8(), u"the type"_s, error), count >= 0);
        if (count >= 0) {
            QCOMPARE(listText(document).size(), count);
            QCOMPARE(listText(shown), listText(document));
            return;
        }
        QCOMPARE(written(shown), before);
        QVERIFY(error.code == -1 && !error.domain.isEmpty());
        QCOMPARE(error.localizedDescription, u"Bad file format"_s); // no translation is loaded
        QCOMPARE(error.filePath, u"the type"_s);
    }

    void modelName()
    {
        const std::pair<QString, QString> rows[] = {
            {u"<ModelInfo><ModelName type='0'>42XX</ModelName></ModelInfo>"_s, u"42XX"_s},
            {u"<ModelInfo><ModelName>42XX</ModelName><x>1</x></ModelInfo>"_s, u"42XX"_s},
            {u"<ModelInfo>42XX</ModelInfo>"_s, u"42XX"_s},
            {u"<ModelInfo><ModelName type='0'/></ModelInfo>"_s, {}},
            {u"<ModelInfo><x>1</x></ModelInfo>"_s, {}},
            {u"<ModelInfo><ModelName>1</ModelName><ModelName>2</ModelName></ModelInfo>"_s, {}},
            {u"<ModelName>42XX</ModelName>"_s, {}}};
        TLLDocument document;
        QCOMPARE(document.modelName(), std::nullopt);
        for (const auto &[content, name] : rows) {
            QVERIFY(read(document, u"<TLLDATA>"_s + content + u"</TLLDATA>"_s));
            QCOMPARE(document.modelName(), name.isNull() ? std::nullopt : std::optional(name));
        }
    }

    void currentListAndCommands()
    {
        TLLDocument document;
        QVERIFY(!document.stations() && document.usesTV() && document.curSource() == 0);
        QVERIFY(read(document, makeTLL({}, {makeStation(16385, u"R"_s, Satellite, 2)})));
        const auto enabled = [&document] {
            QStringList names;
            for (const QString &name : {u"revertDocumentToSaved"_s, u"saveDocument"_s,
                                        u"exportAsReferenceList"_s, u"printDocument"_s, u""_s}) {
                if (document.validateUserInterfaceItem(name))
                    names += name;
            }
            return names;
        };
        document.switchToSource(1);
        QVERIFY(!document.hasData() && document.hasDataForSource(1) &&
                !document.hasDataForSource(0));
        QCOMPARE(enabled(), QStringList()); // though another list has stations
        document.switchToMode(false);
        QCOMPARE(document.stations(), document.lists().list(false, 1));
        QCOMPARE(enabled(), QStringList{u"exportAsReferenceList"_s});
        document.stations()->clear(); // the document's own list
        QVERIFY(!document.hasDataForSource(1) && document.stationCount() == 0);

        QSignalSpy edited(&document, &Document::documentEditedChanged);
        document.setDirtyFlag(true);
        QVERIFY(document.isDirty() && document.hasUnautosavedChanges() &&
                document.isDocumentEdited());
        QCOMPARE(edited.count(), 1);
        QCOMPARE(enabled(), (QStringList{u"revertDocumentToSaved"_s, u"saveDocument"_s}));
        document.setDirtyFlag(false);
        QVERIFY(!document.isDirty() && !document.hasUnautosavedChanges() &&
                !document.isDocumentEdited());

        document.clearVars();
        QVERIFY(!document.stations() && document.list().layout.headerLenDTV() == 0);
        QVERIFY(!document.list().layout.footer() && listText(document).isEmpty());
    }

    void tellsItsWindow()
    {
        TLLDocument document, invisible;
        for (TLLDocument *each : {&document, &invisible})
            each->setWindowFactory([] { return std::make_unique<CountingWindowController>(); });
        invisible.setIsInvisbleDocument(true);
        invisible.makeWindowControllers();
        QVERIFY(invisible.windowControllers().empty());
        document.makeWindowControllers();
        QVERIFY(read(document, makeTLL({}, {makeStation(1, u"A"_s)})));
        QVERIFY(!read(document, inChannel(u"<DTV>x</DTV>"_s)));
        QCOMPARE(CountingWindowController::populated, 2);
    }

    void logsItsCounts()
    {
        QVERIFY(OpenFileLog(u"XT"_s));
        TLLDocument document;
        QVERIFY(read(document, makeTLL({}, {makeStation(1, u"A"_s, Satellite)})));
        const QByteArray log = contentOf(KXFileLog::sharedLogWithName(u"XT"_s)->pathToLogFile());
        QString counts;
        for (const QString &line : QString::fromUtf8(log).split(u'\n'))
            counts += line.section(u": "_s, 1) + u'|';
        QCOMPARE(counts, u"TV[0] = 0|Radio[0] = 0|TV[1] = 1|Radio[1] = 0|TV[2] = 0|Radio[2] = 0|"
                         "TV[3] = 0|Radio[3] = 0||"_s);
    }
};

QUILLET_TEST(TLLDocumentTest)

#include "TLLDocumentTest.moc"
