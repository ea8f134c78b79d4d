#include "editor/ListHeading.h"

#include "editor/TableController.h"
#include "model/TypeFilter.h"
#include "texts/ShownTexts.h"
#include "texts/SourceTitles.h"

#include <QStringList>

namespace quillet {

QString listHeading(const TableController &controller, bool isWhole)
{
    const ShownStations &shown = controller.shown();
    const auto foreign = shown.foreignRows();
    QString heading = listTitle(controller.isModeTV(),
                                foreign ? foreign->source : controller.stationDoc()->curSource());
    const QString dash = QStringLiteral(u" \u2014 ");
    if (const std::optional<QString> model = controller.stationDoc()->modelName())
        heading = drawnName(*model) + dash + heading;
    if (isWhole || !shown.isFiltered())
        return heading;
    QStringList filters;
    if (const QString text = controller.searchText(); !text.isEmpty())
        filters.append(qtTrId("kPrintedSearch").arg(drawnName(text)));
    if (controller.filterTag() != static_cast<int>(TypeFilter::All))
        filters.append(typeFilterTitle(controller.filterTag()));
    if (filters.isEmpty()) // rows that were left of one that has gone
        return heading;
    return heading + dash + qtTrId("kPrintedFiltered").arg(filters.join(QLatin1String(", ")));
}

} // namespace quillet
