#include "EditorFixture.h"

#include <algorithm>

namespace quillet::testing {

Editor::Editor(const std::vector<Item> &stations)
{
    Error error;
    document.setPrompts(&prompts);
    document.setFileUrl(QUrl::fromLocalFile(QStringLiteral("/folder/list.tll")));
    if (!document.readFromData(fileOf(stations), TLLDocument::typeName(), error))
        qFatal("the list of the test is not one");
    outlets.selectionChanged = [this] { controller.tableViewSelectionDidChange(); };
    outlets.rowCount = [this] { return static_cast<qsizetype>(controller.currentList().size()); };
    controller.viewDidLoad();
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

QString Editor::list(int source, bool isTV) const
{
    return text(*document.lists().list(isTV, source));
}

QString Editor::text(const StationList &stations)
{
    QStringList texts;
    for (const StationPtr &station : stations)
        texts.append(station->progNumString() + QLatin1Char(' ') + station->stationName());
    return texts.join(QStringLiteral(", "));
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
