#pragma once

#include "files/SaveJob.h"
#include "framework/Prompts.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillet {

class Document;

/// What a document's bytes are written for.
enum class SavePurpose {
    Save,   ///< the file written is, or becomes, the document's own
    Export, ///< a copy in the described form; the document stays as it is
};

/// What is made of a list for people or other programs, and is written as it is.
struct MadeBytes
{
    QByteArray bytes;
    const char *told;                            ///< id of what is said afterwards, of the path
    const char *failed = "kExportFailedMessage"; ///< the same of a failure, of the name
    QString remarks = {};                        ///< what is said with it afterwards
};

/// One save or export of a document: asks for a place if need be, runs the job, shows what went
/// wrong and offers another way. Lives as long as an answer is awaited and touches the document
/// only in answers, which reach nobody once the document is gone.
class DocumentSaving : public SaveJob::Client, public std::enable_shared_from_this<DocumentSaving>
{
public:
    /// Gets whether a file was written, and if not why; the reason is empty when nobody wanted to.
    using Done = std::function<void(bool, const Error &)>;

    DocumentSaving(Document &document, SavePurpose purpose, const QString &typeName, Done done);
    /// An export of these bytes, which nothing is lost by.
    DocumentSaving(Document &document, MadeBytes made, Done done);

    /// Writes to the document's own file.
    void writeToFile();
    /// Asks for a place with a panel of that title, which suggests the document's own or the one
    /// suggested for it, and writes there.
    void writeToNewPlace(const QString &title);
    /// Asks for a place and writes there.
    void writeToChosenPlace(const SavePanel &panel);
    /// Writes to the place that a panel suggests, which was chosen already. What goes wrong leads
    /// to the panel.
    void writeToSuggestedPlace(const SavePanel &panel);

    [[nodiscard]] QString refusal(const QString &place) const override;
    void makeBytes(const Made &made) override;
    void confirm(FileState::Change change, const std::function<void(bool)> &answered) override;
    [[nodiscard]] bool keep(const QString &path, const QByteArray &replaced, Error &error) override;
    void confirmUnkept(const Error &error, const std::function<void(bool)> &answered) override;
    void finished(const SaveJob::Result &result) override;

private:
    enum class Choice { Cancel, Write, OtherPlace, Reload };
    /// Shows the alert; the choices that it has no button for yet get one.
    void offer(Alert alert, const std::vector<Choice> &choices,
               const std::function<void(Choice)> &chosen);
    [[nodiscard]] QString titleOf(Choice choice) const;
    void goOn(Choice choice, const Error &error);
    void write(const QString &path, const std::optional<FileState> &expected);
    void presentFailure(const Error &error);
    void takeOver(const SaveJob::Result &result);
    void presentUnsure(const SaveJob::Result &result);
    void tellNotKept(const std::vector<NotKept> &notKept);
    [[nodiscard]] QString suggestedPath() const;
    [[nodiscard]] QString toldExport() const;
    [[nodiscard]] SavePanel panelForCopy() const;
    /// What is expected at a place that was chosen; none: whatever is there.
    [[nodiscard]] std::optional<FileState> expectedAt(const QString &path) const;
    [[nodiscard]] QString targetName() const;
    [[nodiscard]] bool isOwnFile() const;

    Document &m_document;
    SavePurpose m_purpose;
    QString m_typeName;
    std::optional<MadeBytes> m_made; ///< none: the document's own bytes are written
    Done m_done;
    QString m_path;                   ///< of the file to write
    quint64 m_changeCount = 0;        ///< of the document's history, as its bytes were made
    std::optional<SavePanel> m_panel; ///< that the place was chosen in
    Error m_lastError;                ///< of an attempt that has failed
    Choice m_next = Choice::Cancel;   ///< what follows the job that ends
};

} // namespace quillet
