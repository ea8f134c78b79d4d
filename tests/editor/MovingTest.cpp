#include "EditorFixture.h"

#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

using Rows = QList<qsizetype>;

/// Moving by dialog and by drag, filling gaps, and files dropped on the table.
class MovingTest : public QObject
{
    Q_OBJECT

private slots:
    void dialog_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("after"); // empty: nothing changes
        const auto row = [](const char *name, const char *typed, const char *after) {
            QTest::newRow(name) << QString::fromLatin1(typed) << QString::fromLatin1(after);
        };
        row("nothing", "", "");
        row("zero", "0", "");
        row("negative", "-3", "");
        row("too high", "10000", "");
        row("no number", "abc", "");
        row("overflow", "99999999999999999999", "");
        row("lowest", "1", "1 B, 2 A, 3 C");
        row("blank before", " 7", "1 A, 3 C, 7 B");
        row("text after", "12abc", "1 A, 3 C, 12 B");
        row("highest", "9999", "1 A, 3 C, 9999 B");
    }
    void dialog()
    {
        QFETCH(QString, typed);
        QFETCH(QString, after);
        Editor editor(lettered({1, 2, 3}));
        editor.outlets.selectRows({1});
        editor.prompts.answerAlert(QStringLiteral("kCancel"), QStringLiteral("1"));
        editor.controller.moveItemsToClicked();
        QCOMPARE(editor.rows(), QStringLiteral("1 A, 2 B, 3 C"));
        editor.prompts.answerAlert(QStringLiteral("kMovingOK"), typed);
        editor.controller.moveItemsToClicked();
        QVERIFY(editor.prompts.isSettled());
        QVERIFY(editor.prompts.alerts().back().alert.asksForText);
        QCOMPARE(editor.rows(), after.isEmpty() ? QStringLiteral("1 A, 2 B, 3 C") : after);
        QCOMPARE(editor.document.isDirty(), !after.isEmpty());
        // B stays selected wherever it has gone.
        const QString above = editor.rows().section(QLatin1Char('B'), 0, 0);
        QCOMPARE(editor.outlets.rows, Rows{above.count(QLatin1Char(','))});
    }

    void fillingGaps()
    {
        Editor editor(lettered({2, 4, 7}));
        editor.search(QStringLiteral("c"));
        editor.outlets.selectRows({0});
        const int reloads = editor.outlets.reloads;
        editor.controller.fillGapsClicked(true);
        QVERIFY(editor.controller.fillGaps() && editor.document.isDirty());
        QCOMPARE(editor.outlets.reloads, reloads + 1);
        QCOMPARE(editor.rows(), QStringLiteral("3 C"));
        QCOMPARE(editor.list(0), QStringLiteral("1 A, 2 B, 3 C"));
        // Without a gap there is nothing to do; switched off, moving leaves them.
        editor.controller.clearDirty();
        editor.controller.fillGapsClicked(true);
        editor.controller.fillGapsClicked(false);
        QVERIFY(!editor.document.isDirty());
        editor.controller.moveElements(0, 1, 9);
        QCOMPARE(editor.list(0), QStringLiteral("1 A, 2 B, 9 C"));
        QCOMPARE(editor.outlets.rows, Rows{0});
        editor.controller.fillGapsClicked(true);
        editor.search({});
        editor.controller.moveElements(0, 1, 3);
        QCOMPARE(editor.list(0), QStringLiteral("1 B, 2 A, 3 C"));
        QCOMPARE(editor.outlets.rows, Rows{1});
    }

    void validateDrop()
    {
        Editor empty({}), filled(lettered({1, 2}));
        const QStringList file{QStringLiteral("/folder/a.tll")};
        const struct
        {
            Editor &editor;
            QStringList files;
            bool isOwn, isAboveRow;
            DragOperation operation;
        } cases[]{
            {filled, {}, true, true, DragOperation::Move},
            {filled, {}, true, false, DragOperation::None},
            {filled, {}, false, true, DragOperation::None},
            {filled, file, false, true, DragOperation::None},
            {empty, file, false, true, DragOperation::Copy},
            {empty, file, false, false, DragOperation::Copy},
        };
        for (const auto &[editor, files, isOwn, isAboveRow, operation] : cases) {
            const TableDrag drag{files, {}, isOwn, isAboveRow, 0};
            QCOMPARE(editor.controller.validateDrop(drag), operation);
        }
    }

    void droppedRows_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<Rows>("dragged");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("after"); // empty: the drop is refused
        QTest::addColumn<Rows>("selected");
        const auto row = [](const char *name, const char *search, const Rows &dragged, int at,
                            const char *after, const Rows &selected) {
            QTest::newRow(name) << QString::fromLatin1(search) << dragged << at
                                << QString::fromLatin1(after) << selected;
        };
        row("to the top", "", {3}, 0, "1 D, 2 A, 3 B, 4 C, 9 E", {0});
        row("to the end", "", {0}, 5, "2 B, 3 C, 4 D, 9 E, 10 A", {4});
        row("down", "", {0}, 3, "2 B, 3 C, 4 A, 5 D, 9 E", {2});
        row("several, against drag order", "", {4, 2}, 1, "1 A, 2 C, 3 E, 4 B, 5 D", {1, 2});
        row("below itself", "", {1}, 2, "", {});
        row("below the first of several", "", {1, 3}, 2, "", {});
        row("onto the top of filtered rows", "e", {0}, 0, "1 E, 2 A, 3 B, 4 C, 5 D", {0});
    }
    void droppedRows()
    {
        QFETCH(QString, search);
        QFETCH(Rows, dragged);
        QFETCH(int, row);
        QFETCH(QString, after);
        Editor editor(lettered({1, 2, 3, 4, 9}));
        editor.search(search);
        const TableDrag drag{{}, dragged, true, true, row};
        QCOMPARE(editor.controller.validateDrop(drag), DragOperation::Move);
        QCOMPARE(editor.controller.acceptDrop(drag), !after.isEmpty());
        QCOMPARE(editor.list(0),
                 after.isEmpty() ? QStringLiteral("1 A, 2 B, 3 C, 4 D, 9 E") : after);
        QCOMPARE(editor.document.isDirty(), !after.isEmpty());
        QTEST(editor.outlets.rows, "selected");
    }

    void droppedFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason"); // empty: it loads
        QTest::newRow("a list") << fileOf(lettered({1, 3})) << QString();
        QTest::newRow("malformed section")
            << QByteArray("<TLLDATA><CHANNEL><ATV>text</ATV></CHANNEL></TLLDATA>")
            << QStringLiteral("Bad file format\nkBadSectionContent");
        QTest::newRow("no bytes") << QByteArray() << QStringLiteral("kContentUnknownReason");
    }
    void droppedFile()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const QString path = write(bytes);
        // Only TV stations, so the radio list counts as empty.
        Editor editor(lettered({5}));
        editor.controller.useRadioClicked();
        const QString before = editor.document.fileUrl().toLocalFile();
        drop(editor, path);
        QVERIFY(editor.list(0) == QStringLiteral("5 A")); // not yet loaded
        if (reason.isEmpty()) {
            editor.outlets.setTVButtonOn(true);
            QTRY_COMPARE(editor.rows(), QStringLiteral("1 A, 3 B"));
            QVERIFY(editor.prompts.alerts().empty());
        } else {
            editor.prompts.answerAlert(QStringLiteral("kOK"));
            QTRY_COMPARE(editor.prompts.lastText(), QStringLiteral("kLoadingProblem\n") + reason);
            QCOMPARE(editor.list(0), QStringLiteral("5 A")); // as it was
        }
        QCOMPARE(editor.document.fileUrl().toLocalFile(), reason.isEmpty() ? path : before);
        QVERIFY(!editor.document.validateUserInterfaceItem(QStringLiteral("saveDocument")));
    }

    void droppedFileAsksAboutChanges_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("isReadable");
        QTest::newRow("cancel") << QStringLiteral("kCancel") << true;
        QTest::newRow("replace") << QStringLiteral("kReplace") << true;
        QTest::newRow("replace by a bad file") << QStringLiteral("kReplace") << false;
    }
    void droppedFileAsksAboutChanges()
    {
        QFETCH(QString, answer);
        QFETCH(bool, isReadable);
        const bool isReplaced = answer == QLatin1String("kReplace");
        Editor editor(lettered({5, 6}));
        editor.controller.moveElements(0, 1, 9);
        editor.controller.useRadioClicked();
        drop(editor, write(isReadable ? fileOf(lettered({1})) : QByteArray()));
        QVERIFY(editor.prompts.alerts().empty());
        QTRY_COMPARE(editor.prompts.alerts().size(), std::size_t(1));
        QCOMPARE(editor.list(0), QStringLiteral("6 B, 9 A"));
        editor.prompts.answerAlert(answer);
        if (!isReadable)
            editor.prompts.answerAlert(QStringLiteral("kOK"));
        QVERIFY(editor.prompts.isSettled());
        const bool isKept = !isReplaced || !isReadable;
        QCOMPARE(editor.list(0), isKept ? QStringLiteral("6 B, 9 A") : QStringLiteral("1 A"));
        // The mark in the title and the question on closing must agree.
        QCOMPARE(editor.document.isDirty(), isKept);
        QCOMPARE(editor.document.isDocumentEdited(), isKept);
    }

private:
    QString write(const QByteArray &bytes)
    {
        const QString path = m_folder.filePath(QStringLiteral("dropped.tll"));
        writeFile(path, bytes);
        return path;
    }

    static void drop(Editor &editor, const QString &path)
    {
        const TableDrag drag{{path, QStringLiteral("/folder/second.tll")}, {}, false, false, 0};
        QCOMPARE(editor.controller.validateDrop(drag), DragOperation::Copy);
        QVERIFY(editor.controller.acceptDrop(drag));
    }

    QTemporaryDir m_folder;
};

QUILLET_TEST(MovingTest)

#include "MovingTest.moc"
