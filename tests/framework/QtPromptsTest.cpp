#include "framework/QtPrompts.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace quillet;

class QtPromptsTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QMainWindow>();
        m_window->show();
        m_answer.reset();
    }
    void cleanup() { m_window.reset(); }

    void buttonsAndKeysAnswer_data()
    {
        QTest::addColumn<QString>("press"); // a button's name; else a key
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("cancelButton");
        QTest::addColumn<int>("answer");
        QTest::newRow("first") << QStringLiteral("alertButton0") << 0 << 2 << 0;
        QTest::newRow("destructive") << QStringLiteral("alertButton1") << 0 << 2 << 1;
        QTest::newRow("last") << QStringLiteral("alertButton2") << 0 << 2 << 2;
        QTest::newRow("Return is the first") << QString() << int{Qt::Key_Return} << 2 << 0;
        QTest::newRow("the letter of the second") << QString() << int{Qt::Key_B} << 2 << 1;
        QTest::newRow("Escape cancels") << QString() << int{Qt::Key_Escape} << 2 << 2;
        QTest::newRow("Escape, cancel first") << QString() << int{Qt::Key_Escape} << 0 << 0;
        QTest::newRow("Escape is the last unless said")
            << QString() << int{Qt::Key_Escape} << -1 << 2;
    }
    void buttonsAndKeysAnswer()
    {
        QFETCH(QString, press);
        QFETCH(int, key);
        QFETCH(int, cancelButton);
        QFETCH(int, answer);
        Alert alert;
        alert.message = QStringLiteral("<b>name</b>");
        alert.informativeText = QStringLiteral("<i>reason</i>");
        alert.buttons = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")};
        alert.cancelButton = cancelButton;
        alert.destructiveButton = 1;
        const QPointer<QMessageBox> box = show(alert);
        QVERIFY(box && box->isVisible());
        QCOMPARE(box->windowModality(), Qt::WindowModal);
        const QList<QLabel *> labels = box->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(QTest::qWaitForWindowActive(box)); // or its letters reach nobody
        if (press.isEmpty())
            QTest::keyClick(box.data(), static_cast<Qt::Key>(key),
                            key < Qt::Key_Escape ? Qt::AltModifier : Qt::NoModifier);
        else
            QTest::mouseClick(box->findChild<QPushButton *>(press), Qt::LeftButton);
        QTRY_VERIFY(m_answer);
        QCOMPARE(m_answer->button, answer);
        QTRY_VERIFY(!box);
    }

    void textFieldTakesTheAnswer()
    {
        Alert alert;
        alert.message = QStringLiteral("Where to?");
        alert.buttons = {QStringLiteral("Move"), QStringLiteral("Cancel")};
        alert.asksForText = true;
        const QPointer<QMessageBox> box = show(alert);
        auto *field = box->findChild<QLineEdit *>(QStringLiteral("alertTextField"));
        QVERIFY(field);
        QCOMPARE(box->focusWidget(), field);
        QCOMPARE(field->accessibleName(), alert.message);
        // Between the text and the buttons, overlapping neither.
        const auto *label = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        const auto *button = box->findChild<QPushButton *>(QStringLiteral("alertButton0"));
        const auto top = [&box](const QWidget *widget) { return widget->mapTo(box, QPoint()).y(); };
        QVERIFY(top(label) + label->height() <= top(field));
        QVERIFY(top(field) + field->height() <= top(button));
        QTest::keyClicks(field, QStringLiteral("17"));
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(m_answer);
        QCOMPARE(m_answer->button, 0);
        QCOMPARE(m_answer->text, QStringLiteral("17"));
    }

    void checkBoxIsToldWithTheAnswer()
    {
        Alert alert;
        alert.buttons = {QStringLiteral("A")};
        alert.checkBox = QStringLiteral("Always");
        const QMessageBox *box = show(alert);
        auto *check = box->findChild<QCheckBox *>(QStringLiteral("alertCheckBox"));
        QVERIFY(check && check->isVisible() && !check->isChecked());
        QCOMPARE(check->text(), QStringLiteral("A&lways")); // the button has the A
        check->click();
        box->findChild<QPushButton *>(QStringLiteral("alertButton0"))->click();
        QVERIFY(m_answer && m_answer->isChecked);
    }

    void progressIsCancelledByAPersonAlone_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<int>("cancelled"); // times
        QTest::newRow("button") << QStringLiteral("button") << 1;
        QTest::newRow("Escape") << QStringLiteral("Escape") << 1;
        QTest::newRow("close button of the sheet") << QStringLiteral("close") << 1;
        QTest::newRow("it is over") << QStringLiteral("over") << 0;
    }
    void progressIsCancelledByAPersonAlone()
    {
        QFETCH(const QString, way);
        const QString message = QStringLiteral("<b>name</b>");
        int cancelled = 0;
        const auto takeAway =
            m_prompts.showProgress(m_window.get(), message, [&cancelled] { ++cancelled; });
        const QPointer sheet(m_window->findChild<QDialog *>(QStringLiteral("progressSheet")));
        QVERIFY(sheet && sheet->isVisible());
        QCOMPARE(sheet->windowModality(), Qt::WindowModal);
        QCOMPARE(sheet->accessibleName(), message);
        QCOMPARE(sheet->findChild<QLabel *>()->textFormat(), Qt::PlainText);
        if (way == QLatin1String("button"))
            sheet->findChild<QPushButton *>()->click();
        else if (way == QLatin1String("Escape"))
            QTest::keyClick(sheet.data(), Qt::Key_Escape);
        else if (way == QLatin1String("close"))
            sheet->close();
        takeAway();
        QTEST(cancelled, "cancelled");
        QTRY_VERIFY(!sheet);
        takeAway(); // nothing is left to do
    }

    void savePanelStartsWhereItIsTold_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("chosen"); // empty: cancelled
        QTest::newRow("as suggested") << QString() << QStringLiteral("list.txt");
        QTest::newRow("another name") << QStringLiteral("other") << QStringLiteral("other.txt");
        QTest::newRow("cancelled") << QString() << QString();
    }
    void savePanelStartsWhereItIsTold()
    {
        QFETCH(QString, typed);
        QFETCH(QString, chosen);
        const QTemporaryDir folder;
        std::optional<QString> path;
        m_prompts.showSavePanel(m_window.get(),
                                {.title = QStringLiteral("Export"),
                                 .suggestedPath = folder.filePath(QStringLiteral("list.txt")),
                                 .nameFilters = {}},
                                [&path](const QString &answer) { path = answer; });
        const QPointer dialog(m_window->findChild<QFileDialog *>(QStringLiteral("savePanel")));
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(dialog->windowModality(), Qt::WindowModal);
        if (!typed.isEmpty())
            dialog->selectFile(typed);
        chosen.isEmpty() ? dialog->reject() : void(QMetaObject::invokeMethod(dialog, "accept"));
        QCOMPARE(path, chosen.isEmpty() ? QString() : folder.filePath(chosen));
        QTRY_VERIFY(!dialog);
    }

    void typeOfASavePanelIsThatOfTheName()
    {
        const QTemporaryDir folder;
        QString path;
        m_prompts.showSavePanel(
            m_window.get(),
            {.title = {},
             .suggestedPath = folder.filePath(QStringLiteral("list.txt")),
             .nameFilters = {QStringLiteral("A (*.txt)"), QStringLiteral("B (*.tll)")},
             .explanation = QStringLiteral("a copy")},
            [&path](const QString &answer) { path = answer; });
        auto *dialog = m_window->findChild<QFileDialog *>(QStringLiteral("savePanel"));
        auto *explanation = dialog->findChild<QLabel *>(QStringLiteral("panelExplanation"));
        QVERIFY(explanation && explanation->isVisible());
        auto *type = dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
        QVERIFY(type && type->count() == 2);
        type->setCurrentIndex(1);
        emit type->activated(1);
        emit type->textActivated(type->currentText());
        QCOMPARE(dialog->selectedFiles(), {folder.filePath(QStringLiteral("list.tll"))});
        dialog->selectFile(QStringLiteral("other"));
        QMetaObject::invokeMethod(dialog, "accept");
        QCOMPARE(path, folder.filePath(QStringLiteral("other.tll")));
    }

    void questionGoesUnansweredWithItsWindow()
    {
        Alert alert;
        alert.buttons = {QStringLiteral("A")};
        const QPointer<QMessageBox> box = show(alert);
        m_window.reset();
        QVERIFY(!box);
        QVERIFY(!m_answer);
    }

    void questionWithoutWindowBlocksTheProgram()
    {
        Alert alert;
        alert.buttons = {QStringLiteral("A")};
        int answers = 0;
        m_prompts.showAlert(nullptr, alert, [&answers](const AlertAnswer &) { ++answers; });
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box);
        QCOMPARE(box->windowModality(), Qt::ApplicationModal);
        QVERIFY(box->close());
        QCOMPARE(answers, 1);
    }

    void openPanelAnswersAndRemembersItsFolder()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.Tll"));
        testing::writeFile(path, {});
        OpenPanel panel;
        panel.title = QStringLiteral("Open");
        panel.directory = folder.path();
        panel.nameFilters = {QStringLiteral("Lists (*.tll)"), QStringLiteral("All (*)")};
        QPointer<QFileDialog> dialog = open(panel);
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(dialog->selectedNameFilter(), panel.nameFilters.front());
        QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
        QVERIFY(dialog->nameFilters().front().endsWith(QLatin1String("(*.[tT][lL][lL])")));
        dialog->selectFile(path);
        QMetaObject::invokeMethod(dialog, "accept");
        QCOMPARE(m_paths, std::optional<QStringList>(QStringList{path}));

        panel.directory.clear();
        panel.allowsSeveral = true;
        dialog = open(panel);
        QCOMPARE(dialog->directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFiles);
        dialog->reject();
        QCOMPARE(m_paths, std::optional<QStringList>(QStringList()));

        QStringList other;
        panel.otherButton = QStringLiteral("Look");
        panel.otherChosen = [&other](const QStringList &paths) { other = paths; };
        panel.directory = folder.path();
        dialog = open(panel);
        auto *look = dialog->findChild<QPushButton *>(QStringLiteral("otherButton"));
        QVERIFY(look && !look->isEnabled());
        dialog->selectFile(path);
        QTRY_VERIFY(look->isEnabled());
        look->click();
        QCOMPARE(other, QStringList{path});
        QVERIFY(!m_paths);

        // A folder that is gone would stand as a file's name.
        QSettings().setValue(QStringLiteral("openPanel/folder"), folder.filePath(panel.title));
        dialog = open(panel);
        QVERIFY(dialog->directory().exists());
        const auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        QVERIFY(name && name->text().isEmpty());
        dialog->reject();
    }

    void printPanelPrintsOnlyOnConfirmation_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("printed");
        QTest::newRow("accepted") << int{QDialog::Accepted} << QStringLiteral("list.tll");
        QTest::newRow("rejected") << int{QDialog::Rejected} << QString();
    }
    void printPanelPrintsOnlyOnConfirmation()
    {
        QFETCH(int, result);
        QFETCH(QString, printed);
        QString name;
        m_prompts.showPrintPanel(m_window.get(), {QStringLiteral("list.tll"), true},
                                 [&name](QPrinter &printer) { name = printer.docName(); });
        const QPointer<QPrintDialog> dialog = m_window->findChild<QPrintDialog *>();
        QVERIFY(dialog);
        QCOMPARE(dialog->objectName(), QStringLiteral("printPanel"));
        dialog->done(result);
        QCOMPARE(name, printed);
        QTRY_VERIFY(!dialog);
    }

private:
    QMessageBox *show(const Alert &alert)
    {
        m_prompts.showAlert(m_window.get(), alert,
                            [this](const AlertAnswer &answer) { m_answer = answer; });
        return m_window->findChild<QMessageBox *>(QStringLiteral("alert"));
    }
    QFileDialog *open(const OpenPanel &panel)
    {
        m_paths.reset();
        m_prompts.showOpenPanel(m_window.get(), panel,
                                [this](const QStringList &paths) { m_paths = paths; });
        // A panel that was answered goes in a later turn of the main loop; the new one comes last.
        return m_window->findChildren<QFileDialog *>(QStringLiteral("openPanel")).constLast();
    }

    QtPrompts m_prompts;
    std::unique_ptr<QMainWindow> m_window;
    std::optional<AlertAnswer> m_answer;
    std::optional<QStringList> m_paths;
};

QUILLET_TEST(QtPromptsTest)

#include "QtPromptsTest.moc"
