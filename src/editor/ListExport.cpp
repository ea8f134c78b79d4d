#include "editor/ListExport.h"

#include "document/compare/UnkeptNames.h"
#include "document/text/HtmlTable.h"
#include "document/text/ReferenceText.h"
#include "document/text/SeparatedText.h"
#include "document/text/StationKey.h"
#include "editor/ListHeading.h"
#include "editor/TableController.h"
#include "model/CleanName.h"
#include "texts/ColumnTitles.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <optional>

namespace quillet {

namespace {

using Format = ExportOptions::Format;

struct FormatFacts
{
    Format format;
    QLatin1String suffix;
    const char *filter; ///< id of the text
};

constexpr std::array formats{
    FormatFacts{Format::Table, QLatin1String("csv"), "kFilterTables"},
    FormatFacts{Format::Order, QLatin1String("txt"), "kFilterTextFiles"},
    FormatFacts{Format::Page, QLatin1String("html"), "kFilterPages"},
};
constexpr QLatin1String tabbedSuffix("tsv");

const FormatFacts &factsOf(Format format)
{
    return *std::find_if(formats.begin(), formats.end(),
                         [format](const FormatFacts &row) { return row.format == format; });
}

void remark(const char *id, std::size_t count, QStringList &remarks)
{
    if (count > 0)
        remarks.append(qtTrId(id, static_cast<int>(count)));
}

} // namespace

ListExport::ListExport(const TableController &table, std::vector<ColumnContent> columns)
    : m_table(table), m_columns(std::move(columns)), m_cells(table.source(), table.satelliteNames())
{
}

const StationList &ListExport::stations(bool onlyShown) const
{
    const StationListPtr &base = m_table.shown().base();
    return onlyShown || !base ? m_table.currentList() : *base;
}

std::size_t ListExport::stationCount(bool onlyShown) const
{
    return stations(onlyShown).size();
}

ListExport::Made ListExport::make(const ExportOptions &options) const
{
    const UnkeptNames names(stations(false));
    switch (options.format) {
    case Format::Table:
        return makeTable(options);
    case Format::Order:
        return makeReferenceList(options);
    case Format::Page:
        return makePage(options);
    }
    return {};
}

/// No text has the character zero, which JSON can put into a name. Where a letter is one byte, the
/// codes of the broadcast would be other letters.
ListExport::Made ListExport::makeTable(const ExportOptions &options) const
{
    SeparatedText text(options.separator);
    QStringList titles;
    for (const ColumnContent content : m_columns)
        titles.append(qtTrId(columnWith(content).title));
    if (options.hasKeys)
        titles.append(stationKeyTitle);
    text.addRow(titles);
    // Keys tell the stations of the whole list apart.
    const auto keys =
        options.hasKeys ? keysByStation(stations(false)) : QHash<const LGStation *, QString>();
    qsizetype zeros = 0;
    for (const StationPtr &station : stations(options.onlyShown)) {
        QStringList cells;
        for (const ColumnContent content : m_columns) {
            const std::optional<bool> mark = CellTexts::mark(*station, content);
            cells.append(mark ? QString(*mark ? u'1' : u'0') : m_cells.text(*station, content));
            if (options.form == TextForm::Windows1252)
                cells.last() = cleanName(cells.last());
            zeros += cells.last().count(QChar::Null);
            cells.last().remove(QChar::Null);
        }
        if (options.hasKeys)
            cells.append(keys.value(station.get()));
        text.addRow(cells);
    }
    EncodedText bytes = encoded(text.text(), options.form);
    Made made{std::move(bytes.bytes), {}};
    remark("kExportLost", static_cast<std::size_t>(bytes.lost + zeros), made.remarks);
    return made;
}

ListExport::Made ListExport::makeReferenceList(const ExportOptions &options) const
{
    ReferenceText text = referenceText(stations(options.onlyShown));
    Made made{std::move(text.bytes), {}};
    if (text.isTooShort)
        made.remarks.append(qtTrId("kExportTooShort"));
    remark("kExportChangedNames", text.changedNames, made.remarks);
    remark("kExportByName", text.byNameAlone, made.remarks);
    remark("kExportRenamed", text.renamed, made.remarks);
    remark("kExportNumbers", text.withNumbers, made.remarks);
    return made;
}

ListExport::Made ListExport::makePage(const ExportOptions &options) const
{
    const QLocale locale;
    const StationList &exported = stations(options.onlyShown);
    HtmlTable table{.title = listHeading(m_table, !options.onlyShown)};
    const auto count = static_cast<int>(exported.size());
    table.notes = {m_table.stationDoc()->displayName(),
                   QStringLiteral("%1 %2, %3")
                       .arg(locale.toString(count), qtTrId("kStations", count),
                            locale.toString(QDate::currentDate(), QLocale::LongFormat))};
    table.language = locale.bcp47Name();
    table.isRightToLeft = locale.textDirection() == Qt::RightToLeft;
    for (const ColumnContent content : m_columns)
        table.columns.push_back(CellTexts::column(content));
    for (const StationPtr &station : exported) {
        HtmlTable::Row &row = table.rows.emplace_back();
        row.isPale = station->isSkipped();
        for (const ColumnContent content : m_columns) {
            const std::optional<bool> mark = CellTexts::mark(*station, content);
            row.cells.append(!mark   ? cleanName(m_cells.text(*station, content))
                             : *mark ? QStringLiteral(u"\u2713")
                                     : QString());
        }
    }
    EncodedText bytes = encoded(htmlPage(table), TextForm::Utf8);
    Made made{std::move(bytes.bytes), {}};
    remark("kExportLost", static_cast<std::size_t>(bytes.lost), made.remarks);
    return made;
}

SavePanel ListExport::panel(const ExportOptions &options) const
{
    const TLLDocument &document = *m_table.stationDoc();
    const QUrl &url = document.fileUrl().isEmpty() ? document.suggestedUrl() : document.fileUrl();
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QFileInfo file(url.isEmpty() ? folder + u'/' + document.displayName()
                                       : url.toLocalFile());
    const FormatFacts &facts = factsOf(options.format);
    const bool isTabbed = options.format == Format::Table && options.separator == u'\t';
    const QLatin1String suffix = isTabbed ? tabbedSuffix : facts.suffix;
    return {.title = qtTrId("kExportListTitle"),
            .suggestedPath = file.path() + u'/' + file.completeBaseName() + u'.' + suffix,
            .nameFilters = {qtTrId(facts.filter) + QLatin1String(" (*.") + suffix + u')',
                            qtTrId("kFilterAllFiles") + QLatin1String(" (*)")}};
}

} // namespace quillet
