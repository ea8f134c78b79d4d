#include "document/text/HtmlTable.h"

#include <QStringBuilder>

namespace quillet {

namespace {

/// Control characters are not allowed in a page and not seen either.
QString escaped(const QString &text)
{
    QString seen;
    seen.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\n' || c == u'\r' || c == u'\t')
            seen += u' ';
        else if (c.category() != QChar::Other_Control)
            seen += c;
    }
    return seen.toHtmlEscaped();
}

QLatin1String classOf(HtmlTable::Alignment alignment)
{
    switch (alignment) {
    case HtmlTable::Alignment::Centre:
        return QLatin1String(" class=\"c\"");
    case HtmlTable::Alignment::End:
        return QLatin1String(" class=\"e\"");
    case HtmlTable::Alignment::Start:
        break;
    }
    return {};
}

constexpr QLatin1String style(R"(body{font-family:sans-serif;margin:2em;color:#000;background:#fff}
h1{font-size:1.3em;margin:0 0 .3em}
p{margin:0 0 .2em;color:#444}
table{border-collapse:collapse;margin-top:1em}
th,td{padding:.15em .7em;border-bottom:1px solid #ccc;text-align:start;vertical-align:top}
th{border-bottom:2px solid #000}
.c{text-align:center}
.e{text-align:end;font-variant-numeric:tabular-nums}
.p{color:#767676}
thead{display:table-header-group}
tr{break-inside:avoid}
@media print{body{margin:0;font-size:9pt}})");

} // namespace

QString htmlTable(const HtmlTable &table)
{
    QString html = QStringLiteral("<table>\n<thead><tr>");
    for (const HtmlTable::Column &column : table.columns)
        html += QLatin1String("<th") % classOf(column.alignment) % u'>' % escaped(column.title) %
                QLatin1String("</th>");
    html += QLatin1String("</tr></thead>\n<tbody>\n");
    for (const HtmlTable::Row &row : table.rows) {
        html += QLatin1String(row.isPale ? "<tr class=\"p\">" : "<tr>");
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            html += QLatin1String("<td") % classOf(table.columns[i].alignment) % u'>' %
                    escaped(row.cells.value(static_cast<qsizetype>(i))) % QLatin1String("</td>");
        html += QLatin1String("</tr>\n");
    }
    return html + QLatin1String("</tbody>\n</table>\n");
}

QString htmlPage(const HtmlTable &table)
{
    const QString title = escaped(table.title);
    QString html = QLatin1String("<!DOCTYPE html>\n<html lang=\"") % escaped(table.language) %
                   QLatin1String(table.isRightToLeft ? "\" dir=\"rtl\">\n" : "\">\n") %
                   QLatin1String("<head>\n<meta charset=\"utf-8\">\n<title>") % title %
                   QLatin1String("</title>\n<style>\n") % style %
                   QLatin1String("\n</style>\n</head>\n<body>\n<h1>") % title %
                   QLatin1String("</h1>\n");
    for (const QString &note : table.notes)
        html += QLatin1String("<p>") % escaped(note) % QLatin1String("</p>\n");
    return html % htmlTable(table) % QLatin1String("</body>\n</html>\n");
}

} // namespace quillet
