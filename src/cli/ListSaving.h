#pragma once

#include "cli/ExitStatus.h"
#include "files/FileOperations.h"
#include "files/FileState.h"
#include "files/VersionStore.h"
#include "model/LGStation.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

class Console;
class Invocation;
struct ListFile;

/// Where --output or --in-place have an edited list written, and how: the tool's one way to a
/// file. Asks nobody: what a window would ask about is refused, unless the call allows it.
class ListSaving
{
public:
    ListSaving(const Invocation &invocation, Console &console);

    /// Why the call cannot be carried out with these operands; empty: it can.
    [[nodiscard]] static QString wrongUse(const Invocation &invocation);

    /// Whether the file itself would be replaced, and nothing keeps what is in it.
    [[nodiscard]] bool losesOriginal() const;

    /// Writes the list as a save of it would, of a list of JSON channels with the stations of
    /// `shown`; or in the repaired form, if that is wanted and needed. Tells what fails or is
    /// refused.
    ExitStatus write(const ListFile &file, const StationListPtr &shown);
    /// Writes bytes that need no rehearsal, because somebody else has made them; `own` is the file
    /// that --in-place means.
    ExitStatus writeBytes(const ListFile &own, const QByteArray &bytes);
    /// The same to --output alone. `expected` is what is there, where that is known.
    ExitStatus writeOutput(const QByteArray &bytes, const std::optional<FileState> &expected = {});

private:
    [[nodiscard]] std::optional<QByteArray> reviewed(const ListFile &file, const QByteArray &plain);
    ExitStatus replace(const QString &path, const QByteArray &bytes,
                       const std::optional<FileState> &expected);

    const Invocation &m_invocation;
    Console &m_console;
    FileOperations m_operations;
    std::optional<VersionStore> m_versions; ///< none: nothing is kept
};

} // namespace quillet
