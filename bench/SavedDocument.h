#pragma once

#include "bench/SheetPrompts.h"
#include "document/TLLDocument.h"
#include "files/FileOperations.h"
#include "files/VersionStore.h"

#include <QTemporaryDir>

namespace quillet::bench {

/// A document with a file of its own that is saved like that of a window, and keeps the earlier
/// versions of it; all in a folder that goes with it.
class SavedDocument
{
public:
    enum class Ending { Written, Asked, Failed };

    /// Reads a copy of that file.
    [[nodiscard]] bool open(const QString &original);
    /// What the command to save comes to: returns when the file is written or a question is on
    /// show.
    [[nodiscard]] Ending save();
    /// Answers that question and returns what it comes to. -1 cancels.
    [[nodiscard]] Ending answer(int button);
    /// Skips the first station, or no longer, so that the next save writes other bytes.
    void edit();

    [[nodiscard]] TLLDocument &document() { return m_document; }

private:
    [[nodiscard]] Ending ending();

    QTemporaryDir m_folder;
    FileOperations m_operations;
    VersionStore m_versions{m_folder.filePath(QStringLiteral("versions")), m_operations};
    SheetPrompts m_prompts;
    TLLDocument m_document;
    bool m_isDone = false;
    bool m_isWritten = false;
};

} // namespace quillet::bench
