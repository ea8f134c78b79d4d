#pragma once

#include "files/RecoveryFolder.h"
#include "files/RecoveryState.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace quillet {

/// The folder in which programs keep their changed documents from being lost, one folder a
/// document, and what programs that ended too early have left there. Deletes nothing but what holds
/// no edit.
class RecoveryStore
{
public:
    /// The operations must outlive the store and its folders.
    RecoveryStore(QString root, FileOperations &operations);
    /// In the folder where a person's programs keep their state.
    [[nodiscard]] static QString usualRoot();

    [[nodiscard]] const QString &root() const { return m_root; }
    /// Makes the folder of them all, unless it is there.
    [[nodiscard]] bool makeRoot(QString &reason);
    [[nodiscard]] std::unique_ptr<RecoveryFolder> makeFolder(Error &error);

    /// A document that can be brought back, or a folder that cannot be read any more.
    struct Leftover
    {
        std::unique_ptr<RecoveryFolder> folder;
        std::optional<RecoveryState> state; ///< none when it cannot be read
        QString problem; ///< why the document cannot be brought back; empty: it can
    };
    /// What programs that live no more have left, the latest change first. Each folder is locked as
    /// long as its leftover is kept, if it can be. Where a program ended before it had kept any
    /// edit, its files are cleared away; nobody else's are.
    [[nodiscard]] std::vector<Leftover> leftovers();
    /// Whether there are any; cheaper, and changes nothing.
    [[nodiscard]] bool hasLeftovers() const;

private:
    [[nodiscard]] std::vector<QString> folders() const;

    QString m_root;
    FileOperations &m_operations;
};

} // namespace quillet
