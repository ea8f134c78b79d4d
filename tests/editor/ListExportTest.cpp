#include "editor/ListExport.h"

#include "EditorFixture.h"

#include "document/order/ReferenceList.h"
#include "editor/ExportDialog.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

using Format = ExportOptions::Format;

std::vector<Item> stations()
{
    std::vector<Item> items{makeStation(1, u"A;\"b\" \u0141"_s), makeStation(2, u"B"_s),
                            makeStation(3, u"A&lt;c&gt;"_s)};
    items[1].insert(items[1].end(), {{u"isSkipped"_s, u"1"_s},
                                     {u"original_network_id"_s, u"1"_s},
                                     {u"transport_id"_s, u"1019"_s},
                                     {u"service_id"_s, u"10301"_s}});
    return items;
}

ListExport exportOf(const Editor &editor)
{
    return {editor.controller,
            {ColumnContent::Name, ColumnContent::Number, ColumnContent::Skipped}};
}

} // namespace

/// What a list is exported as, and what is said of that.
class ListExportTest : public QObject
{
    Q_OBJECT

private slots:
    void writesTheColumnsOnShow_data()
    {
        QTest::addColumn<ExportOptions>("options");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("remarks");
        QTest::addRow("semicolons, one byte a letter")
            << ExportOptions{.separator = u';', .form = TextForm::Windows1252}
            << QByteArray("kColumnName;kColumnNumber;kColumnSkipped;stationKey\r\n"
                          "\"A;\"\"b\"\" ?\";1;0;x\r\nB;2;1;n1-t1019-s10301\r\nA<c>;3;0;x-2\r\n")
            << 1;
        // Of the rows on show, the keys are those of the whole list.
        QTest::addRow("what is shown")
            << ExportOptions{.form = TextForm::Utf8, .onlyShown = true}
            << QByteArray("kColumnName,kColumnNumber,kColumnSkipped,stationKey\r\n"
                          "\"A;\"\"b\"\" \xC5\x81\",1,0,x\r\nA<c>,3,0,x-2\r\n")
            << 0;
        QTest::addRow("no keys") << ExportOptions{.hasKeys = false, .onlyShown = true}
                                 << QByteArray("\xEF\xBB\xBFkColumnName,kColumnNumber,"
                                               "kColumnSkipped\r\n\"A;\"\"b\"\" \xC5\x81\",1,0\r\n"
                                               "A<c>,3,0\r\n")
                                 << 0;
        QTest::addRow("reference list")
            << ExportOptions{.format = Format::Order}
            << QByteArray("1;A,\"b\" \xC5\x81;?-?-?\r\n2;B;1-1019-10301\r\n3;A<c>;?-?-?\r\n") << 2;
        QTest::addRow("too short for one")
            << ExportOptions{.format = Format::Order, .onlyShown = true}
            << QByteArray("1;A,\"b\" \xC5\x81;?-?-?\r\n3;A<c>;?-?-?\r\n") << 3;
    }
    void writesTheColumnsOnShow()
    {
        QFETCH(const ExportOptions, options);
        Editor editor(stations());
        editor.search(u"A"_s);
        const ListExport::Made made = exportOf(editor).make(options);
        QTEST(made.bytes, "bytes");
        QTEST(static_cast<int>(made.remarks.size()), "remarks");
    }

    void pagesAreEscaped()
    {
        Editor editor(stations());
        const QByteArray page = exportOf(editor).make({.format = Format::Page}).bytes;
        QVERIFY(page.contains("<td>A&lt;c&gt;</td><td class=\"e\">3</td><td class=\"c\"></td>"));
        QVERIFY(page.contains("<tr class=\"p\"><td>B</td>"));
        QVERIFY(page.contains("\u2713"));
        // Reference lists go by the names that somebody has seen.
        QVERIFY(editor.document.stations()->front()->name().isEmpty());
    }

    /// As it was chosen, through the one way that files are written; the next time it is chosen.
    void dialogExportsAsChosen()
    {
        Editor editor(stations());
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"list.tsv"_s);
        editor.prompts.answerSavePanel(path);
        QWidget window;
        const auto open = [&editor, &window] {
            askToExport(editor.controller, {ColumnContent::Number}, &window);
            return window.findChildren<ExportDialog *>().last();
        };
        QPointer<ExportDialog> dialog = open();
        auto *separator = dialog->findChild<QComboBox *>(u"exportSeparator"_s);
        separator->setCurrentIndex(separator->findData(int(u'\t')));
        auto *format = dialog->findChild<QComboBox *>(u"exportFormat"_s);
        format->setCurrentIndex(static_cast<int>(Format::Page));
        QVERIFY(separator->isHidden());
        format->setCurrentIndex(static_cast<int>(Format::Order));
        QString told;
        connect(&editor.document, &Document::told, this,
                [&told](const QString &text) { told = text; });
        // Who does not see the line hears it.
        auto *button = dialog->findChild<QDialogButtonBox *>()->buttons().first();
        QVERIFY(button->accessibleDescription().contains(u"kExportByName"_s));
        format->setCurrentIndex(static_cast<int>(Format::Table));
        QVERIFY(!separator->isHidden());
        QVERIFY(dialog->findChild<QComboBox *>(u"exportStations"_s)->isHidden());
        dialog->accept();
        QTRY_COMPARE(contentOf(path), "\xEF\xBB\xBFkColumnNumber\tstationKey\r\n"
                                      "1\tx\r\n2\tn1-t1019-s10301\r\n3\tx-2\r\n");
        QVERIFY(editor.prompts.savePanels().front().suggestedPath.endsWith(u"list.tsv"_s));
        QVERIFY(!editor.document.isDirty());
        QTRY_VERIFY(!dialog);
        QCOMPARE(open()->options().separator, u'\t');
    }
};

QUILLET_TEST(ListExportTest)

#include "ListExportTest.moc"
