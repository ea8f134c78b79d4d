#include "editor/ListPrinting.h"

#include "editor/SourceTitles.h"
#include "editor/TablePrinter.h"
#include "editor/TableSelection.h"
#include "editor/ViewController.h"
#include "framework/Prompts.h"

#include <QPointer>
#include <QTableView>

namespace quillet {

namespace {

/// What the list is, for every page: rows that a filter kept are of the source they came from.
QString headingOf(const ViewController &controller)
{
    const auto foreign = controller.shown().foreignRows();
    const QString source =
        sourceTitle(foreign ? foreign->source : controller.stationDoc()->curSource());
    const QString list = qtTrId(controller.isModeTV() ? "kPrintedTV" : "kPrintedRadio").arg(source);
    const std::optional<QString> model = controller.stationDoc()->modelName();
    return model ? *model + QStringLiteral(u" \u2014 ") + list : list;
}

} // namespace

void printList(const QTableView &table, ViewController &controller, QWidget *window)
{
    TLLDocument *document = controller.stationDoc();
    if (!document || !document->prompts() || controller.currentList().empty())
        return;
    const PrintPanel panel{.documentName = document->displayName(),
                           .hasSelection = table.selectionModel()->hasSelection()};
    const auto print = [&controller, guard = QPointer(&table)](QPrinter &printer) {
        TLLDocument *printed = controller.stationDoc();
        if (!guard || !printed)
            return;
        TablePrinter pages(*guard, headingOf(controller), printed->displayName());
        const TablePrinter::Outcome outcome = pages.print(printer);
        if (outcome == TablePrinter::Outcome::Printed)
            return;
        const bool isEmpty = outcome == TablePrinter::Outcome::NoSuchPage;
        printed->presentError(qtTrId("kPrintFailedMessage").arg(printed->displayName()),
                              {QStringLiteral("Printing"),
                               1,
                               qtTrId(isEmpty ? "kNoSuchPageReason" : "kPrintFailedReason"),
                               {}});
    };
    document->prompts()->showPrintPanel(window, panel, print);
}

} // namespace quillet
