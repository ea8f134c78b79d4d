#include "framework/QtPrompts.h"

#include "files/FileNames.h"
#include "framework/Mnemonics.h"
#include "framework/Speech.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>
#include <QVBoxLayout>

#include <filesystem>
#include <memory>
#include <system_error>

namespace quillet {

namespace {

QString folderKey()
{
    return QStringLiteral("openPanel/folder");
}

/// The first of the folders that is there; else the person's own.
QString firstFolderOf(const QStringList &folders)
{
    for (const QString &folder : folders) {
        std::error_code unused;
        if (!folder.isEmpty() && std::filesystem::is_directory(nativePath(folder), unused))
            return folder;
    }
    return QDir::homePath();
}

/// By their URLs, in which a platform's own panel hands on every name as it is.
QStringList pathsChosen(const QFileDialog &dialog)
{
    QStringList paths;
    for (const QUrl &url : dialog.selectedUrls())
        paths.append(pathFromUrl(url));
    return paths;
}

QString documentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

/// "Name (*.tll)" with patterns that fit the suffix in any case; it is shown as before by a panel
/// that hides the patterns at the end.
QString inAnyCase(const QString &nameFilter)
{
    const qsizetype open = nameFilter.indexOf(u'(');
    QString patterns;
    for (const QChar letter : nameFilter.sliced(open < 0 ? nameFilter.size() : open)) {
        if (letter.isLetter())
            patterns += u'[' + letter.toLower() + letter.toUpper() + u']';
        else
            patterns += letter;
    }
    return nameFilter + u' ' + patterns;
}

/// Shows a dialog as a sheet of its window; without one, before the whole program.
void present(QDialog &dialog, const QString &objectName)
{
    dialog.setObjectName(objectName);
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    if (dialog.parentWidget()) {
        dialog.open();
    } else {
        dialog.setWindowModality(Qt::ApplicationModal);
        dialog.show();
    }
}

QMessageBox::ButtonRole roleOf(int button, int cancelButton, const Alert &alert)
{
    if (button == alert.destructiveButton)
        return QMessageBox::DestructiveRole;
    // A lone button is the one that accepts, even though Escape presses it as well.
    return button == cancelButton && alert.buttons.size() > 1 ? QMessageBox::RejectRole
                                                              : QMessageBox::AcceptRole;
}

void addButtons(QMessageBox &box, const Alert &alert, const QStringList &titles)
{
    const int last = static_cast<int>(alert.buttons.size()) - 1;
    const int cancelButton = alert.cancelButton < 0 ? last : alert.cancelButton;
    for (int i = 0; i <= last; ++i) {
        QPushButton *button = box.addButton(titles[i], roleOf(i, cancelButton, alert));
        button->setObjectName(QStringLiteral("alertButton%1").arg(i));
        if (i == 0)
            box.setDefaultButton(button);
        if (i == cancelButton)
            box.setEscapeButton(button);
    }
}

/// Lays a text field out between the texts and the buttons, which come last in a message box.
QLineEdit *addTextField(QMessageBox &box, const QString &name)
{
    auto *field = new QLineEdit(&box);
    field->setObjectName(QStringLiteral("alertTextField"));
    field->setAccessibleName(name);
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    auto *buttons = box.findChild<QDialogButtonBox *>();
    if (grid && buttons) {
        grid->removeWidget(buttons);
        grid->addWidget(field, grid->rowCount(), grid->columnCount() - 1);
        grid->addWidget(buttons, grid->rowCount(), 0, 1, grid->columnCount());
    }
    field->setFocus();
    return field;
}

QCheckBox *addCheckBox(QMessageBox &box, const QString &text)
{
    auto *check = new QCheckBox(text, &box);
    check->setObjectName(QStringLiteral("alertCheckBox"));
    box.setCheckBox(check);
    return check;
}

/// Names of files are shown as they are, also when they look like markup.
void showAsPlainText(QMessageBox &box)
{
    const QList<QLabel *> labels = box.findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setTextFormat(Qt::PlainText);
}

/// Keeps a widget enabled as long as the one that it filters the events of. Owned by the former.
class FollowEnabled : public QObject
{
public:
    explicit FollowEnabled(QWidget &follower) : QObject(&follower), m_follower(follower) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            m_follower.setEnabled(static_cast<const QWidget *>(watched)->isEnabled());
        return false;
    }

private:
    QWidget &m_follower;
};

/// Qt's own panel has labels beside its combo boxes, but none that belongs to them.
void nameChoices(QFileDialog &dialog)
{
    for (const auto &[label, box] :
         {std::pair{"lookInLabel", "lookInCombo"}, std::pair{"fileTypeLabel", "fileTypeCombo"}}) {
        const auto *title = dialog.findChild<QLabel *>(QLatin1String(label));
        if (auto *choice = dialog.findChild<QComboBox *>(QLatin1String(box)); title && choice)
            nameChoice(*choice, title->text());
    }
}

/// Only a panel of Qt's own has a layout to put it in.
void addExplanation(QFileDialog &dialog, const QString &text)
{
    auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    if (text.isEmpty() || !grid)
        return;
    auto *label = new QLabel(text, &dialog);
    label->setObjectName(QStringLiteral("panelExplanation"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    grid->addWidget(label, grid->rowCount(), 0, 1, grid->columnCount());
}

/// A button beside the one that opens, which is enabled with it and does the same but for setting
/// `isOther`. Only a panel of Qt's own has room for it.
void addOtherButton(QFileDialog &dialog, const QString &title, const std::shared_ptr<bool> &isOther)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    QPushButton *open = buttons ? buttons->button(QDialogButtonBox::Open) : nullptr;
    if (!open)
        return;
    auto *other = new QPushButton(u'&' + title);
    buttons->addButton(other, QDialogButtonBox::ActionRole);
    other->setObjectName(QStringLiteral("otherButton"));
    other->setAutoDefault(false);
    other->setEnabled(open->isEnabled());
    open->installEventFilter(new FollowEnabled(*other));
    QObject::connect(other, &QPushButton::clicked, open, [open, isOther] {
        *isOther = true;
        open->click();
        *isOther = false; // it was a folder, or a name that there is not
    });
}

int indexOfClickedButton(const QMessageBox &box, const Alert &alert)
{
    for (int i = 0; i < alert.buttons.size(); ++i) {
        const QAbstractButton *clicked = box.clickedButton();
        if (clicked && clicked->objectName() == QStringLiteral("alertButton%1").arg(i))
            return i;
    }
    return -1;
}

} // namespace

void QtPrompts::showAlert(QWidget *window, const Alert &alert,
                          std::function<void(const AlertAnswer &)> done)
{
    auto *box = new QMessageBox(window);
    box->setIcon(alert.destructiveButton < 0 ? QMessageBox::NoIcon : QMessageBox::Warning);
    box->setWindowTitle(QGuiApplication::applicationDisplayName());
    box->setText(alert.message);
    box->setInformativeText(alert.informativeText);
    box->setAccessibleName(alert.message);
    box->setAccessibleDescription(alert.informativeText);
    showAsPlainText(*box);
    const QStringList titles = withMnemonics(alert.buttons + QStringList{alert.checkBox});
    addButtons(*box, alert, titles);
    QCheckBox *check = alert.checkBox.isEmpty() ? nullptr : addCheckBox(*box, titles.last());
    QLineEdit *field = alert.asksForText ? addTextField(*box, alert.message) : nullptr;
    QObject::connect(box, &QDialog::finished, box, [box, check, field, alert, done] {
        done({indexOfClickedButton(*box, alert), field ? field->text() : QString(),
              check && check->isChecked()});
    });
    present(*box, QStringLiteral("alert"));
}

void QtPrompts::showOpenPanel(QWidget *window, const OpenPanel &panel,
                              std::function<void(const QStringList &)> done)
{
    const QString remembered = QSettings().value(folderKey()).toString();
    auto *dialog = new QFileDialog(window, panel.title,
                                   firstFolderOf({panel.directory, remembered, documentsFolder()}));
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(panel.allowsSeveral ? QFileDialog::ExistingFiles
                                            : QFileDialog::ExistingFile);
    QStringList filters;
    for (const QString &filter : panel.nameFilters)
        filters.append(inAnyCase(filter));
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilters(filters);
    nameChoices(*dialog);
    const auto isOther = std::make_shared<bool>(false);
    if (!panel.otherButton.isEmpty())
        addOtherButton(*dialog, panel.otherButton, isOther);
    const auto finish = [dialog, done, isOther, other = panel.otherChosen](int result) {
        if (result != QDialog::Accepted)
            return done({});
        QSettings().setValue(folderKey(), dialog->directory().absolutePath());
        (*isOther ? other : done)(pathsChosen(*dialog));
    };
    QObject::connect(dialog, &QDialog::finished, dialog, finish);
    present(*dialog, QStringLiteral("openPanel"));
}

void QtPrompts::showSavePanel(QWidget *window, const SavePanel &panel,
                              std::function<void(const QString &)> done)
{
    const QFileInfo suggested(panel.suggestedPath);
    auto *dialog =
        new QFileDialog(window, panel.title, firstFolderOf({suggested.path(), documentsFolder()}));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilters(panel.nameFilters);
    nameChoices(*dialog);
    dialog->setDefaultSuffix(suggested.suffix());
    dialog->selectFile(readable(suggested.fileName()));
    addExplanation(*dialog, panel.explanation);
    // The name typed changes with the type by itself.
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &filter) {
        const qsizetype dot = filter.indexOf(QLatin1String("(*."));
        if (dot >= 0)
            dialog->setDefaultSuffix(filter.mid(dot + 3, filter.indexOf(u')') - dot - 3));
    });
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, done](int result) {
        done(result == QDialog::Accepted ? pathsChosen(*dialog).value(0) : QString());
    });
    present(*dialog, QStringLiteral("savePanel"));
}

void QtPrompts::showPrintPanel(QWidget *window, const PrintPanel &panel,
                               std::function<void(QPrinter &)> print)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(panel.documentName);
    auto *dialog = new QPrintDialog(printer.get(), window);
    dialog->setOption(QPrintDialog::PrintCurrentPage);
    dialog->setOption(QPrintDialog::PrintSelection, panel.hasSelection);
    // The connection keeps the printer alive for as long as the dialog.
    QObject::connect(dialog, &QDialog::finished, dialog, [printer, print](int result) {
        if (result == QDialog::Accepted)
            print(*printer);
    });
    present(*dialog, QStringLiteral("printPanel"));
}

std::function<void()> QtPrompts::showProgress(QWidget *window, const QString &message,
                                              std::function<void()> cancelled)
{
    auto *dialog = new QDialog(window);
    dialog->setWindowTitle(QGuiApplication::applicationDisplayName());
    dialog->setAccessibleName(message);
    auto *label = new QLabel(message);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    auto *bar = new QProgressBar;
    bar->setRange(0, 0); // how long it takes is not known
    bar->setAccessibleName(message);
    auto *buttons = new QDialogButtonBox;
    auto *cancel = buttons->addButton(withMnemonics({qtTrId("kCancel")}).constFirst(),
                                      QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("progressCancel"));
    auto *layout = new QVBoxLayout(dialog);
    for (QWidget *widget : {static_cast<QWidget *>(label), static_cast<QWidget *>(bar),
                            static_cast<QWidget *>(buttons)})
        layout->addWidget(widget);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(dialog, &QDialog::rejected, dialog, std::move(cancelled));
    present(*dialog, QStringLiteral("progressSheet"));
    return [dialog = QPointer(dialog)] {
        if (dialog)
            dialog->accept();
    };
}

} // namespace quillet
