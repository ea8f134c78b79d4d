#include "texts/ColumnTitles.h"

#include "texts/StationColumns.h"

#include <QDir>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <functional>

namespace quillet {

namespace {

constexpr std::array fields{
    std::pair{ColumnContent::Number, RowField::Number},
    std::pair{ColumnContent::Name, RowField::Name},
    std::pair{ColumnContent::Skipped, RowField::Skipped},
    std::pair{ColumnContent::Blocked, RowField::Locked},
    std::pair{ColumnContent::NetworkId, RowField::NetworkId},
    std::pair{ColumnContent::TransportStreamId, RowField::TransportStreamId},
    std::pair{ColumnContent::ServiceId, RowField::ServiceId},
    std::pair{ColumnContent::Frequency, RowField::Frequency},
};

/// By the text of an id.
RowTitles titlesBy(const std::function<QString(const char *)> &text)
{
    RowTitles titles{{foldedTitle(stationKeyTitle), RowField::Key}};
    const auto add = [&titles, &text](const StationColumn &column, RowField field) {
        for (const QString &title :
             {QString(column.identifier), text(column.title), text(column.fullName)}) {
            if (!title.isEmpty())
                titles.insert(foldedTitle(title), field);
        }
    };
    for (const StationColumn &column : stationColumns)
        add(column, RowField::Other);
    for (const auto &[content, field] : fields)
        add(columnWith(content), field);
    return titles;
}

qsizetype fitOf(const RowTitles &titles, const SeparatedTable &table)
{
    const auto isKnown = [&titles](const SeparatedCell &cell) {
        return titles.contains(foldedTitle(cell.text));
    };
    const auto first = table.firstRow();
    return first == table.rows.end() ? 0 : std::count_if(first->begin(), first->end(), isKnown);
}

} // namespace

RowTitles titlesFor(const SeparatedTable &table)
{
    RowTitles best = titlesBy([](const char *id) { return qtTrId(id); });
    qsizetype fit = fitOf(best, table);
    const QDir texts(QStringLiteral(":/i18n"));
    for (const QString &file : texts.entryList({QStringLiteral("quillet_*.qm")})) {
        QTranslator translator;
        if (!translator.load(texts.filePath(file)))
            continue;
        RowTitles titles =
            titlesBy([&translator](const char *id) { return translator.translate(nullptr, id); });
        if (const qsizetype itsFit = fitOf(titles, table); itsFit > fit) {
            best = std::move(titles);
            fit = itsFit;
        }
    }
    return best;
}

} // namespace quillet
