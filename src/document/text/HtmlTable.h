#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace quillet {

/// A table of texts for a browser, or for what pastes tables: escaped whole, so that no text of a
/// file can be anything but text there.
struct HtmlTable
{
    enum class Alignment { Start, Centre, End };
    struct Column
    {
        QString title;
        Alignment alignment = Alignment::Start;
    };
    struct Row
    {
        QStringList cells; ///< as many as there are columns
        bool isPale = false;
    };

    QString title;
    QStringList notes = {}; ///< lines beneath the title
    QString language = {};  ///< of the titles, as BCP 47 has it
    bool isRightToLeft = false;
    std::vector<Column> columns = {};
    std::vector<Row> rows = {};
};

/// The table alone.
[[nodiscard]] QString htmlTable(const HtmlTable &table);
/// A whole page with it, to be encoded as UTF-8, that prints well and repeats its head on each
/// sheet of paper.
[[nodiscard]] QString htmlPage(const HtmlTable &table);

} // namespace quillet
