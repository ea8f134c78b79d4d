#include "editor/ListPrinting.h"

#include "editor/CompactPrinter.h"
#include "editor/ListHeading.h"
#include "editor/TablePrinter.h"
#include "editor/ViewController.h"
#include "framework/Prompts.h"

#include <QItemSelectionModel>
#include <QPointer>
#include <QPrinter>
#include <QTableView>

#include <memory>

namespace quillet {

namespace {

std::unique_ptr<PagePrinter> printerOf(PrintForm form, const QTableView &table,
                                       const PagePrinter::Words &words)
{
    if (form == PrintForm::Compact)
        return std::make_unique<CompactPrinter>(table, words);
    return std::make_unique<TablePrinter>(table, words);
}

/// A file is made in memory, because a printer does not tell that a disk is full.
PagePrinter::Outcome print(PagePrinter &pages, QPrinter &printer, TLLDocument &document)
{
    const QString path = printer.outputFileName();
    if (path.isEmpty() || printer.outputFormat() != QPrinter::PdfFormat)
        return pages.print(printer);
    QByteArray bytes;
    const PagePrinter::Outcome outcome = pages.makePDF(printer, bytes);
    if (outcome == PagePrinter::Outcome::Printed)
        document.exportBytesThere({.title = qtTrId("kPrintTitle"),
                                   .suggestedPath = path,
                                   .nameFilters = {QStringLiteral("PDF (*.pdf)")}},
                                  {bytes, "kToldPrinted", "kPrintToFileFailedMessage"},
                                  [](bool, const Error &) {});
    return outcome;
}

void presentFailure(PagePrinter::Outcome outcome, TLLDocument &document)
{
    const bool isEmpty = outcome == PagePrinter::Outcome::NoSuchPage;
    document.presentError(qtTrId("kPrintFailedMessage").arg(document.displayName()),
                          {QStringLiteral("Printing"),
                           1,
                           qtTrId(isEmpty ? "kNoSuchPageReason" : "kPrintFailedReason"),
                           {}});
}

} // namespace

void printList(const QTableView &table, ViewController &controller, PrintForm form, QWidget *window)
{
    TLLDocument *document = controller.stationDoc();
    if (!document || !document->prompts() || controller.currentList().empty())
        return;
    const PrintPanel panel{.documentName = document->displayName(),
                           .hasSelection = table.selectionModel()->hasSelection()};
    const auto confirmed = [&controller, form, guard = QPointer(&table)](QPrinter &printer) {
        TLLDocument *printed = controller.stationDoc();
        if (!guard || !printed)
            return;
        const auto pages =
            printerOf(form, *guard, {listHeading(controller), printed->displayName()});
        const PagePrinter::Outcome outcome = print(*pages, printer, *printed);
        if (outcome != PagePrinter::Outcome::Printed)
            presentFailure(outcome, *printed);
    };
    document->prompts()->showPrintPanel(window, panel, confirmed);
}

} // namespace quillet
