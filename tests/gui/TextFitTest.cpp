#include "AppFixture.h"

#include "editor/EditorView.h"
#include "editor/ElidedLabel.h"
#include "editor/NoticeBar.h"
#include "framework/Mnemonics.h"
#include "framework/QtPrompts.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"
#include "texts/Translations.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenuBar>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabWidget>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The language and the direction in which windows are made; the ones before come back at its end.
class Locale
{
public:
    Locale(const QString &language, Qt::LayoutDirection direction)
    {
        installTranslations(language);
        QApplication::setLayoutDirection(direction);
    }
    ~Locale()
    {
        installTranslations();
        QApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    }
    Q_DISABLE_COPY_MOVE(Locale)
};

/// Every language the program has texts in.
QStringList languages()
{
    QStringList found = QDir(u":/i18n"_s).entryList({u"quillet_*.qm"_s});
    for (QString &name : found)
        name = name.section(u'_', 1).chopped(3);
    return found;
}

int widthOf(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

bool buttonFits(const QAbstractButton &button)
{
    QFont bold = button.font();
    bold.setBold(true); // as a selected segment is
    const QFont &font = button.inherits("QPushButton") ? button.font() : bold;
    const QSize text = QFontMetrics(font).size(Qt::TextShowMnemonic, button.text());
    const bool isCommand =
        button.objectName().endsWith("Button"_L1) && button.inherits("QPushButton");
    const int room = isCommand ? 2 * button.fontMetrics().averageCharWidth() : 0; // at both sides
    const QSize needed = button.sizeHint().expandedTo(text + QSize(2 * room, 0));
    return button.width() >= needed.width() && button.height() >= needed.height();
}

bool labelFits(const QLabel &label)
{
    if (label.wordWrap()) {
        return label.width() >= label.minimumSizeHint().width() &&
               label.height() >= label.heightForWidth(label.width());
    }
    const QSize needed = label.sizeHint();
    return label.width() >= needed.width() && label.height() >= needed.height();
}

bool boxFits(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const int room =
        box.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
            .width();
    for (int i = 0; i < box.count(); ++i) {
        if (widthOf(box, box.itemText(i)) > room)
            return false;
    }
    return true;
}

bool placeholderFits(const QLineEdit &field)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    const QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    return widthOf(field, field.placeholderText()) <= room.width();
}

bool headerFits(const QHeaderView &header)
{
    for (int section = 0; section < header.count(); ++section) {
        if (header.sectionSize(section) < header.sectionSizeHint(section))
            return false;
    }
    return header.height() >= header.sizeHint().height();
}

bool menuBarFits(const QMenuBar &bar)
{
    for (const QAction *action : bar.actions()) {
        const QRect place = bar.actionGeometry(const_cast<QAction *>(action));
        if (!bar.rect().contains(place) || place.width() < widthOf(bar, action->text()))
            return false;
    }
    return true;
}

bool fits(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text().isEmpty() || buttonFits(*button);
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text().isEmpty() || labelFits(*label);
    if (const auto *label = qobject_cast<const ElidedLabel *>(&widget))
        return label->objectName() == "fileName"_L1 || label->width() >= label->sizeHint().width();
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return boxFits(*box);
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return placeholderFits(*field);
    if (const auto *bar = qobject_cast<const QMenuBar *>(&widget))
        return menuBarFits(*bar);
    const auto *header = qobject_cast<const QHeaderView *>(&widget);
    return !header || headerFits(*header);
}

/// Whether a widget lies in the window or, where that scrolls, in what it scrolls, which may be
/// higher than there is room for.
bool isInside(const QWidget &widget, const QWidget &window)
{
    const QWidget *ground = &window;
    for (const QWidget *each = &widget; each != &window; each = each->parentWidget()) {
        const auto *area = qobject_cast<const QScrollArea *>(each);
        if (!area || !area->widget()->isVisibleTo(area))
            continue;
        if (area->widget() == &widget)
            return widget.width() <= area->viewport()->width();
        if (area->widget()->isAncestorOf(&widget))
            ground = area->widget();
        break;
    }
    return ground->rect().contains(QRect(widget.mapTo(ground, QPoint()), widget.size()));
}

/// What the window does not show whole, as the names of its parts; empty when all fits.
QString clippedParts(const QWidget &window)
{
    QStringList clipped;
    int texts = 0;
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisibleTo(&window) || widget->window() != &window)
            continue;
        if (!fits(*widget) || !isInside(*widget, window))
            clipped.append(
                u"%1 %2 (%3x%4)"_s
                    .arg(QLatin1String(widget->metaObject()->className()), widget->objectName())
                    .arg(widget->width())
                    .arg(widget->height()));
        if (widget->inherits("QAbstractButton") || widget->inherits("QLabel"))
            ++texts;
    }
    if (texts == 0)
        clipped.append(u"no texts"_s);
    return clipped.join(u", "_s);
}

/// What is clipped in the window as it is and at its smallest.
QString clippedAtAnySize(QWidget &window)
{
    QCoreApplication::processEvents();
    const QSize size = window.size();
    QString clipped = clippedParts(window);
    window.resize(1, 1);
    QCoreApplication::processEvents();
    if (const QString small = clippedParts(window); !small.isEmpty())
        clipped += u" at the smallest: "_s + small;
    window.resize(size);
    QCoreApplication::processEvents();
    return clipped;
}

/// What is clipped in the dialog with that name once it is shown; it is closed afterwards.
QString clippedInDialog(const QWidget &window, const char *name)
{
    QDialog *dialog = nullptr;
    const auto isShown = [&] {
        dialog = window.findChild<QDialog *>(QString::fromLatin1(name));
        return dialog && dialog->isVisible();
    };
    if (!QTest::qWaitFor(isShown))
        return QLatin1String(name) + u" is not shown"_s;
    const QString clipped = clippedAtAnySize(*dialog);
    dialog->close();
    const bool isGone = QTest::qWaitFor([guard = QPointer(dialog)] { return !guard; });
    return isGone ? clipped : QLatin1String(name) + u" stays open"_s;
}

/// The texts that have the same letter after &, or none; empty when each has its own.
QString repeated(const QStringList &texts)
{
    QMap<QString, QStringList> byLetter;
    for (const QString &text : texts)
        byLetter[QKeySequence::mnemonic(text).toString()].append(text);
    QStringList found;
    for (auto it = byLetter.cbegin(); it != byLetter.cend(); ++it) {
        if (it->size() > 1 || it.key().isEmpty())
            found.append(it->join(u" = "_s));
    }
    return found.join(u", "_s);
}

QStringList textsOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions) {
        if (!action->isSeparator())
            texts.append(action->text());
    }
    return texts;
}

} // namespace

/// Every text is shown, whole, in every language, and in both directions of reading.
class TextFitTest : public QObject
{
    Q_OBJECT

private slots:
    void everyButtonOfASheetHasItsOwnLetter()
    {
        const QList<QStringList> sheets{
            {u"kSave"_s, u"kDiscardChanges"_s, u"kCancel"_s},
            {u"kSaveRepaired"_s, u"kSaveWithout"_s, u"kCancel"_s, u"kReviewAlways"_s},
            {u"kCancel"_s, u"kSaveAnyway"_s, u"kSaveCopy"_s, u"kReload"_s},
            {u"kCancel"_s, u"kSaveHereAnyway"_s, u"kChoosePlace"_s}};
        for (const QString &language : languages()) {
            const Locale locale(language, Qt::LeftToRight);
            for (const QStringList &ids : sheets) {
                QStringList titles;
                for (const QString &text : ids)
                    titles.append(qtTrId(text.toLatin1().constData(), 3));
                QSet<QKeySequence> keys;
                for (const QString &title : withMnemonics(titles)) {
                    QVERIFY2(!QKeySequence::mnemonic(title).isEmpty(), qPrintable(title));
                    keys.insert(QKeySequence::mnemonic(title));
                }
                QCOMPARE(keys.size(), titles.size());
            }
        }
    }

    void nothingIsClipped_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QVERIFY(languages().contains(u"de"_s) && languages().contains(u"pl"_s));
        for (const QString &language : languages())
            QTest::newRow(qPrintable(language)) << language << Qt::LeftToRight;
        for (const char *language : {"en", "de", "pl"})
            QTest::addRow("%s, from right to left", language)
                << QString::fromLatin1(language) << Qt::RightToLeft;
    }
    void nothingIsClipped()
    {
        QFETCH(QString, language);
        QFETCH(Qt::LayoutDirection, direction);
        QtPrompts prompts;
        App app(&prompts);
        const Locale locale(language, direction);
        const QByteArray list = readSample(u"cable.tll"_s);
        QMainWindow *window = app.open("a.tll", list);
        QVERIFY(window);
        QCOMPARE(window->layoutDirection(), direction);
        QCOMPARE(clippedAtAnySize(*window), QString());

        // With the number of matches beside the number of stations.
        part<QLineEdit>(*window, "searchText").setText(u"a"_s);
        QVERIFY(!part<QLabel>(*window, "matches").text().isEmpty());
        QCOMPARE(clippedAtAnySize(*window), QString());

        selectRows(*window, {0});
        menuItem(*window, "moveItemsToClicked").trigger();
        QCOMPARE(clippedInDialog(*window, "alert"), QString());
        menuItem(*window, "showInfo").trigger();
        QCOMPARE(clippedInDialog(*window, "infoPanel"), QString());
        menuItem(*window, "showAbout").trigger();
        QCOMPARE(clippedInDialog(*window, "aboutWindow"), QString());
        const QString order = app.write("an order with a rather long name.tll", list);
        part<EditorView>(*window, "EditorView").controller().ordering().applyFile(order);
        QCOMPARE(clippedInDialog(*window, "alert"), QString());
        part<EditorView>(*window, "EditorView").controller().comparing().compareWithFile(order);
        QCOMPARE(clippedInDialog(*window, "compareDialog"), QString());
    }

    void preferencesAreNotClipped_data() { nothingIsClipped_data(); }
    /// Nor has a page two keys for one letter.
    void preferencesAreNotClipped()
    {
        QFETCH(QString, language);
        QFETCH(Qt::LayoutDirection, direction);
        App app;
        const Locale locale(language, direction);
        app.delegate.showPreferences();
        QWidget *dialog = QApplication::activeWindow();
        QVERIFY(QTest::qWaitFor([&dialog] {
            dialog = QApplication::activeWindow();
            return dialog && dialog->objectName() == "preferencesDialog"_L1;
        }));
        auto &pages = part<QTabWidget>(*dialog, "preferencesPages");
        QCOMPARE(pages.count(), 3);
        for (int i = 0; i < pages.count(); ++i) {
            pages.setCurrentIndex(i);
            QCoreApplication::processEvents();
            QCOMPARE(clippedParts(*dialog), QString());
            QStringList texts;
            for (int tab = 0; tab < pages.count(); ++tab)
                texts.append(pages.tabText(tab));
            for (const QWidget *each : dialog->findChildren<QWidget *>()) {
                const auto *label = qobject_cast<const QLabel *>(each);
                const auto *button = qobject_cast<const QAbstractButton *>(each);
                if (each->isVisible() && label && label->buddy())
                    texts.append(label->text());
                else if (each->isVisible() && button && !button->text().isEmpty() &&
                         each->parent()->objectName() != "columns"_L1)
                    texts.append(button->text());
            }
            QCOMPARE(repeated(texts), QString());
        }
    }

    void hintsAreNotClipped_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : languages())
            QTest::newRow(qPrintable(language)) << language;
    }
    void hintsAreNotClipped()
    {
        QFETCH(QString, language);
        App app;
        const Locale locale(language, Qt::LeftToRight);
        QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        menuItem(*window, "useRadioClicked").trigger();
        QVERIFY(part<QLabel>(*window, "emptyDocText").isVisible());
        QCOMPARE(clippedAtAnySize(*window), QString());

        app.delegate.documents().newDocument();
        QMainWindow *empty = app.window(2);
        QVERIFY(empty && part<QLabel>(*empty, "emptyDocText").isVisible());
        QCOMPARE(clippedAtAnySize(*empty), QString());
    }

    void noticesAreNotClipped_data() { hintsAreNotClipped_data(); }
    void noticesAreNotClipped()
    {
        QFETCH(QString, language);
        App app;
        const Locale locale(language, Qt::LeftToRight);
        // With accents in Latin-1, and damaged in the first and the last station.
        QByteArray list = listOf(3).replace("Station", "\xC9mission");
        list.replace("1</vchName>", "& 1</vchName>");
        QMainWindow *window = app.open("a.tll", list.first(list.lastIndexOf("</vchName>")));
        QVERIFY(window && part<QWidget>(*window, "noticeAction").isVisible());
        QCOMPARE(part<QLabel>(*window, "noticeText").text().count(u'\n'), 1);
        part<NoticeBar>(*window, "fileBar")
            .showNotice(NoticeBar::Kind::Warning, qtTrId("kNoticeFileChanged").arg(u"a.tll"_s),
                        label("kReload"), label("kKeepMine"));
        QCOMPARE(clippedAtAnySize(*window), QString());

        part<QAbstractButton>(*window, "noticeAction").click();
        QMainWindow *copy = app.window(2);
        QVERIFY(copy && part<QLabel>(*copy, "noticeText").isVisible());
        QCOMPARE(clippedAtAnySize(*copy), QString());
    }

    void formIsTranslated()
    {
        App app;
        const Locale locale(u"de"_s, Qt::LeftToRight);
        const QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        QCOMPARE(part<QLabel>(*window, "deviceTitle").text(), label("kDeviceTitle"));
        QCOMPARE(part<QLabel>(*window, "searchTitle").text(), label("kSearchTitle"));
        QCOMPARE(part<QAbstractButton>(*window, "moveToButton").text(), label("kMoveTo"));
        QCOMPARE(part<QAbstractButton>(*window, "fillGapsButton").text(), label("kFillGaps"));
        QCOMPARE(part<QLineEdit>(*window, "searchText").placeholderText(),
                 label("kSearchPlaceholder"));
        QVERIFY(label("kMoveTo").contains(u"erschieben"));
    }

    void mnemonicsAreUnique_data() { hintsAreNotClipped_data(); }
    /// Of the entries of each menu, and of the menus and the controls of the window.
    void mnemonicsAreUnique()
    {
        QFETCH(QString, language);
        App app;
        const Locale locale(language, Qt::LeftToRight);
        const QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        const QList<QAction *> menus = window->menuBar()->actions();
        QCOMPARE(menus.size(), 4);
        for (const QAction *menu : menus)
            QCOMPARE(repeated(textsOf(menu->menu()->actions())), QString());
        QStringList texts = textsOf(menus);
        for (const char *name : {"tvButton", "radioButton", "moveToButton", "infoButton",
                                 "applyButton", "fillGapsButton"})
            texts.append(part<QAbstractButton>(*window, name).text());
        texts.append(part<QLabel>(*window, "searchTitle").text());
        QCOMPARE(repeated(texts), QString());
    }
};

QUILLET_TEST(TextFitTest)

#include "TextFitTest.moc"
