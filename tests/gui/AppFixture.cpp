#include "AppFixture.h"

#include "framework/WindowController.h"
#include "testing/TLLText.h"
#include "texts/Translations.h"

#include <QAction>
#include <QDir>
#include <QSettings>
#include <QTest>

namespace quillet::testing {

App::App(Prompts *prompts, Settings settings) : delegate(prompts ? *prompts : preset)
{
    static const bool hasTexts = (installTranslations(), true);
    Q_UNUSED(hasTexts)
    if (settings == Settings::Cleared)
        QSettings().clear();
    delegate.settings().look();
}

QString App::write(const char *name, const QByteArray &bytes) const
{
    const QString path = folder.filePath(QString::fromLatin1(name));
    writeFile(path, bytes);
    return path;
}

QMainWindow *App::window(std::size_t documents) const
{
    const auto &open = const_cast<App *>(this)->delegate.documents().documents();
    if (open.size() != documents)
        return nullptr;
    QMainWindow *last = open.back()->windowControllers().front()->window();
    return QTest::qWaitForWindowActive(last) ? last : nullptr;
}

QMainWindow *App::open(const char *name, const QByteArray &bytes)
{
    const std::size_t before = delegate.documents().documents().size();
    delegate.applicationDidFinishLaunching({write(name, bytes)});
    return window(before + 1);
}

QTableView &tableOf(const QWidget &window)
{
    return part<QTableView>(window, "list");
}

QString cell(const QWidget &window, int row, int column)
{
    return tableOf(window).model()->index(row, column).data().toString();
}

QAction &menuItem(const QWidget &window, const char *name)
{
    return part<QAction>(window, name);
}

void selectRows(const QWidget &window, const QList<int> &rows)
{
    const QTableView &table = tableOf(window);
    Qt::KeyboardModifiers modifiers;
    for (const int row : rows) {
        const QRect place = table.visualRect(table.model()->index(row, 1));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, modifiers, place.center());
        modifiers = Qt::ControlModifier;
    }
}

QByteArray listOf(int count)
{
    std::vector<Item> stations;
    for (int number = 1; number <= count; ++number)
        stations.push_back(makeStation(number, QStringLiteral("Station %1").arg(number)));
    return makeTLL({}, stations).toUtf8();
}

QString label(const char *id)
{
    return qtTrId(id);
}

} // namespace quillet::testing
