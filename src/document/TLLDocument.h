#pragma once

#include "document/DocumentState.h"
#include "document/list/ChannelList.h"
#include "document/order/ReferenceList.h"
#include "framework/Document.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quillet {

class EditRecord;
struct SaveForms;
class Settings;
class TLLWindowController;

/// A channel list as a document: where it came from, which of its lists is the current one, whether
/// it has changes, its window, and what is asked before a save. Owned by the document controller.
class TLLDocument : public Document
{
    Q_OBJECT

public:
    /// The program's one document type, which also names the private type of dragged rows.
    static QString typeIdentifier();
    /// The type name under which a file is read into a document by hand.
    static QString typeName();

    using WindowFactory = std::function<std::unique_ptr<TLLWindowController>()>;

    explicit TLLDocument(QObject *parent = nullptr);
    ~TLLDocument() override;

    /// What makeWindowControllers() makes its window with; without one it makes none.
    void setWindowFactory(WindowFactory factory) { m_makeWindow = std::move(factory); }
    /// What tells how the person wants JSON lists saved, and remembers it; must outlive the
    /// document. Without it they are asked each time.
    void setSettings(Settings *settings) { m_settings = settings; }

    // Reading and writing

    bool readFromData(const QByteArray &data, const QString &typeName, Error &error) override;
    [[nodiscard]] QByteArray dataOfType(const QString &typeName, Error &error) override;
    bool replaceContent(const QByteArray &data, const QString &typeName, Error &error) override;
    /// Reads the mended text of the file with that name.
    [[nodiscard]] bool readRepaired(const MendedText &mended, const QString &fileName);
    /// What was mended in the text that was read, until it is saved; none when nothing was.
    [[nodiscard]] const std::optional<Repair> &repair() const { return m_repair; }
    [[nodiscard]] std::optional<Recoverable> recoverable() const override;
    /// The current list becomes the one that was.
    bool restoreContent(const QByteArray &original, const QByteArray &edits, Error &error) override;
    /// Empties the lists and forgets what was remembered of the text.
    void clearVars();
    /// Makes the URL that of this document; always true.
    bool useFileURL(const QUrl &url);

    /// The list itself, of which these are the parts by their names.
    [[nodiscard]] const ChannelList &list() const { return m_list; }
    /// The whole text of the file as it was decoded, which takes a while to make.
    [[nodiscard]] QString xmlString() const { return m_list.text.toString(); }
    /// The tree of the text; empty when nothing was parsed.
    [[nodiscard]] const Dictionary &xmlDictionary() const { return m_list.tree; }
    /// Whether the file keeps its stations as JSON.
    [[nodiscard]] bool isLegacyFormat() const { return m_list.isLegacyFormat; }
    [[nodiscard]] bool isFormatWithLegacybroadcast() const
    {
        return m_list.isFormatWithLegacybroadcast();
    }
    [[nodiscard]] bool docUsesCRLF() const { return m_docUsesCRLF; }
    /// The model name of the set; none when the file does not tell.
    [[nodiscard]] std::optional<QString> modelName() const { return m_list.modelName(); }

    /// The detail says why, and is for people.
    [[nodiscard]] static Error createBadFileFormatError(const QString &path,
                                                        const QString &detail = {});
    [[nodiscard]] static Error createBadFileTypeError(const QString &detail);

    /// The set and how many stations there are.
    [[nodiscard]] RecentFacts recentFacts() const override;

    // The lists

    [[nodiscard]] const StationLists &lists() const { return m_list.lists; }
    /// How many stations were filed under sources 0 to 2 and under source 3 when the file was read.
    [[nodiscard]] qsizetype digitalStations() const { return m_list.digitalStations; }
    [[nodiscard]] qsizetype analogStations() const { return m_list.analogStations; }
    /// The list of the current source and mode, shared with lists(); null before one was chosen.
    [[nodiscard]] const StationListPtr &stations() const { return m_stations; }
    [[nodiscard]] int curSource() const { return m_curSource; }
    [[nodiscard]] bool usesTV() const { return m_usesTV; }
    void switchToMode(bool isTV);
    /// The index is 0 to 3.
    void switchToSource(int source);
    /// Of the current list.
    [[nodiscard]] qsizetype stationCount() const;
    [[nodiscard]] bool hasData() const { return stationCount() > 0; }
    /// Whether the source has stations, TV or radio.
    [[nodiscard]] bool hasDataForSource(int source) const;
    [[nodiscard]] StationListPtr listWithMostEntries(bool isTV) const;
    /// Imposes a reference list on the current list, then reports in a sheet what was matched. The
    /// file name is for the report. What it did is noted in the record, if there is one, which
    /// whoever means to undo it has to give.
    void applyOrderFromRefList(const ReferenceList &entries, const QString &fileName,
                               EditRecord *record = nullptr);
    /// Asks for a place and saves a copy of the file there.
    void exportAsReferenceList();
    /// False for none, an empty text and a single blank.
    [[nodiscard]] static bool isValidFieldContent(const std::optional<QString> &content);

    // Changes

    /// Notes whether there are changes.
    void setDirtyFlag(bool dirty);
    [[nodiscard]] bool isDirty() const { return isDocumentEdited(); }
    [[nodiscard]] bool validateUserInterfaceItem(const QString &action) const override;

    // Windows

    void makeWindowControllers() override;
    /// Whether the document is only read by another part and never shown.
    [[nodiscard]] bool isInvisbleDocument() const { return m_isInvisbleDocument; }
    void setIsInvisbleDocument(bool invisible) { m_isInvisbleDocument = invisible; }

protected:
    /// Asks when the bytes would lose something of what was read or edited, unless the person
    /// chose before to have such a save repaired.
    void makeBytes(const QString &typeName, SavePurpose purpose,
                   const SaveJob::Client::Made &made) override;
    void documentWasSaved() override;
    [[nodiscard]] QString savedText() const override;

private:
    void chooseForm(const std::shared_ptr<SaveForms> &forms, SavePurpose purpose,
                    const SaveJob::Client::Made &made);
    void updateStationPointer();
    [[nodiscard]] bool savesRepairedUnasked() const;

    WindowFactory m_makeWindow;
    Settings *m_settings = nullptr;
    QPointer<TLLWindowController> m_lgWindowController;
    ChannelList m_list;
    std::optional<Repair> m_repair;
    bool m_savesRepaired = false; ///< it was saved in the repaired form once
    bool m_wasUnasked = false;    ///< the save under way is repaired without a question
    StationListPtr m_stations;
    int m_curSource = 0;
    bool m_usesTV = true;
    bool m_docUsesCRLF = false;
    bool m_isInvisbleDocument = false;
};

} // namespace quillet
