#include "EditorFixture.h"

#include <algorithm>

namespace quillet::testing {

using namespace Qt::Literals::StringLiterals;

Editor::Editor(const std::vector<Item> &stations)
{
    document.setPrompts(&prompts);
    document.setFileUrl(QUrl::fromLocalFile(u"/folder/list.tll"_s));
    outlets.selectionChanged = [this] { controller.tableViewSelectionDidChange(); };
    outlets.reloaded = [this] {
        model.setNameColumnEditable(outlets.nameIsEditable);
        model.reload();
        outlets.rows.clear();
    };
    outlets.changed = [this](const ListChange &change) {
        QList<QPersistentModelIndex> selected;
        for (const qsizetype row : std::as_const(outlets.rows))
            selected.append(model.index(static_cast<int>(row), 0));
        model.show(change);
        outlets.rows.clear();
        for (const QPersistentModelIndex &index : std::as_const(selected))
            outlets.rows.append(index.row());
        std::sort(outlets.rows.begin(), outlets.rows.end());
    };
    controller.viewDidLoad();
    show(fileOf(stations));
}

void Editor::show(const QByteArray &bytes)
{
    Error error;
    if (!document.readFromData(bytes, TLLDocument::typeName(), error))
        qFatal("the list of the test is not one");
    controller.populateFromTLLDoc(document, {});
}

void Editor::search(const QString &text)
{
    outlets.search = text;
    controller.textDidChange();
}

void Editor::clickSegment(int segment)
{
    outlets.segment = segment;
    controller.sourceSegmentClicked();
}

QString Editor::rows() const
{
    const auto mark = [this](int row, int column, QChar letter) {
        const QVariant state = model.index(row, column).data(Qt::CheckStateRole);
        return state.value<Qt::CheckState>() == Qt::Checked ? QString(letter) : QString();
    };
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QString marks = mark(row, 3, u's') + mark(row, 4, u'b');
        texts.append(model.index(row, 0).data().toString() + u' ' +
                     model.index(row, 1).data().toString() +
                     (marks.isEmpty() ? marks : u' ' + marks));
    }
    return texts.join(u", "_s);
}

QString Editor::list(int source, bool isTV) const
{
    QStringList texts;
    for (const StationPtr &station : *document.lists().list(isTV, source))
        texts.append(station->progNumString() + u' ' + station->shownName());
    return texts.join(u", "_s);
}

std::vector<Item> lettered(const QList<int> &numbers, FileSource source)
{
    std::vector<Item> items;
    for (qsizetype i = 0; i < numbers.size(); ++i)
        items.push_back(
            makeStation(numbers[i], QString(QChar(u'A' + static_cast<char16_t>(i))), source));
    return items;
}

Item makeRadio(int number, const QString &name, FileSource source)
{
    return makeStation(number | static_cast<int>(LGStation::radioMark), name, source, 2);
}

QByteArray fileOf(const std::vector<Item> &stations)
{
    std::vector<Item> analogue, digital;
    const auto isAnalogue = [](const Item &item) { return item[1].second == QLatin1String("2"); };
    std::partition_copy(stations.begin(), stations.end(), std::back_inserter(analogue),
                        std::back_inserter(digital), isAnalogue);
    return makeTLL(analogue, digital).toUtf8();
}

} // namespace quillet::testing
