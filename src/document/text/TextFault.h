#pragma once

#include <QString>

namespace quillet {

/// Where a table that another program wrote is not as it should be, and why.
struct TextFault
{
    enum class Kind {
        UnclosedQuote,
        TextBehindQuote,
        ZeroCharacter, ///< which no text has
        TooLarge,
        NoRows,
        NoColumns,     ///< no title is known, or none by which stations are found
        DoubledColumn, ///< a title that is known stands there twice
        TooManyCells,
        BadNumber,
        BadMark,
    };

    Kind kind = Kind::NoRows;
    qsizetype line = 0;       ///< of the file, from 1
    qsizetype column = 0;     ///< in UTF-16 code units of the line, from 1
    QString cell = {};        ///< what stands there, of a fault in a cell
    qsizetype cellNumber = 0; ///< of a fault in a cell below the titles: in its row, from 1
    QString title = {};       ///< of its column; may be empty
};

} // namespace quillet
