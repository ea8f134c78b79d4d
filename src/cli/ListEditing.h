#pragma once

#include "cli/ExitStatus.h"
#include "cli/ListChoice.h"
#include "document/edit/EditRecord.h"
#include "xml/Dictionary.h"

#include <QString>

#include <functional>

namespace quillet {

class Console;
class Invocation;
class ListSaving;
class StationChoice;
struct ListFile;

/// An edit of one list of a file. Answers why it cannot be made, in a sentence; empty when it was.
using ListEdit =
    std::function<QString(const ChosenList &list, const StationList &chosen, EditRecord &record)>;

/// What an edit is about.
enum class EditOf {
    Stations, ///< so that a file in which it changes nothing stays as it was read
    Numbers,  ///< so that those count which reading had to give, too
};

/// Makes the edit in each chosen list of each file that the call names, and writes the file, or
/// shows what would change. A file in which something is refused stays as it is.
ExitStatus editFiles(const Invocation &invocation, Console &console, EditOf about,
                     const ListEdit &edit);

/// What becomes of a list that was edited: it is written, or shown when that is what was asked for.
class EditedList
{
public:
    /// To be made before the edit.
    EditedList(const ListFile &file, const Invocation &invocation, Console &console);

    /// More to show than stations: lines before them, and members in JSON.
    void tellMore(const QString &text);
    void tellMore(const QString &member, const Value &value);
    /// `changed` is the list that was edited, of which alone JSON channels are written in the plain
    /// form; null: none was, and the file stays as it was read. `found` is what the edit itself has
    /// come to.
    ExitStatus finish(ListSaving &saving, const StationListPtr &changed,
                      ExitStatus found = ExitStatus::Done);

private:
    void show(ExitStatus found);

    const ListFile &m_file;
    const Invocation &m_invocation;
    Console &m_console;
    std::shared_ptr<const class ListsBefore> m_before; ///< for showing alone
    QString m_moreText;
    Dictionary m_more;
};

/// Whether reading has given stations of the file other numbers than it tells, because they had
/// none or one that others had.
[[nodiscard]] bool isRenumberedByReading(const ListFile &file);

/// Says that so many stations would get a number that they cannot carry; empty when the call allows
/// that, and when there are none.
[[nodiscard]] QString reasonAgainstBeyond(std::size_t beyond, const Invocation &invocation);

} // namespace quillet
