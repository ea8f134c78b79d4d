#include "document/TLLDocument.h"

#include "document/LoadingLog.h"
#include "document/SaveReview.h"
#include "document/TLLWindowController.h"
#include "document/list/ListSnapshot.h"
#include "document/order/ReferenceOrder.h"
#include "document/recovery/ListEdits.h"
#include "document/review/SaveForms.h"
#include "document/write/TLLWriter.h"
#include "files/Settings.h"
#include "framework/Prompts.h"
#include "framework/RecentFiles.h"
#include "texts/FormatTexts.h"
#include "texts/ReferenceOrderTexts.h"

#include <QFileInfo>
#include <QLoggingCategory>

#include <utility>

namespace quillet {

namespace {

Q_LOGGING_CATEGORY(log, "quillet.document")

constexpr QLatin1String errorDomain("org.quillet.Quillet");

} // namespace

QString TLLDocument::typeIdentifier()
{
    return QStringLiteral("QuilletType.LG");
}

QString TLLDocument::typeName()
{
    return QStringLiteral("LG station list");
}

TLLDocument::TLLDocument(QObject *parent) : Document(parent) {}

TLLDocument::~TLLDocument() = default;

bool TLLDocument::readFromData(const QByteArray &data, const QString &typeName, Error &error)
{
    const Reading reading = readInto(m_list, data);
    history().clear();
    logLoading(m_list, reading);
    if (reading == Reading::NoText)
        return false;
    m_repair.reset();
    if (reading == Reading::BadFormat) {
        error = createBadFileFormatError(typeName, badFormatDetail(m_list));
        return false;
    }
    // The editor is not refreshed when the stations are kept as JSON.
    if (m_lgWindowController && !m_list.isLegacyFormat)
        m_lgWindowController->populateFromTLLDoc(*this, {});
    return true;
}

bool TLLDocument::readRepaired(const MendedText &mended, const QString &fileName)
{
    Error unused;
    if (!readFromData(mended.utf8, typeName(), unused))
        return false;
    m_repair = Repair{mended.mending, fileName};
    return true;
}

QByteArray TLLDocument::dataOfType(const QString &, Error &)
{
    return writeTLL(m_list, m_stations);
}

bool TLLDocument::replaceContent(const QByteArray &data, const QString &typeName, Error &error)
{
    ChannelList fresh;
    fresh.layout = m_list.layout; // what a file does not give stays that of the one before
    const Reading reading = readInto(fresh, data);
    logLoading(fresh, reading);
    if (reading == Reading::BadFormat)
        error = createBadFileFormatError(typeName, badFormatDetail(fresh));
    if (reading != Reading::Done)
        return false;
    m_list = std::move(fresh);
    m_repair.reset();
    m_savesRepaired = false;
    return true;
}

std::optional<Document::Recoverable> TLLDocument::recoverable() const
{
    const DocumentState state{m_usesTV, m_curSource, m_savesRepaired, m_repair};
    return Recoverable{m_list.text.bytes(), [state, edits = ListEdits::of(m_list)] {
                           const QByteArray bytes = edits.encoded();
                           return bytes.isNull() ? bytes : state.encodedWith(bytes);
                       }};
}

RecentFacts TLLDocument::recentFacts() const
{
    return {.origin = modelName().value_or(QString()), .entries = m_list.stationCount()};
}

bool TLLDocument::restoreContent(const QByteArray &original, const QByteArray &bytes, Error &)
{
    QByteArray editBytes;
    const std::optional<DocumentState> state = DocumentState::decoded(bytes, editBytes);
    const auto edits = state ? ListEdits::decoded(editBytes) : std::nullopt;
    ChannelList fresh;
    if (!edits || readInto(fresh, original) != Reading::Done || !edits->applyTo(fresh))
        return false;
    logLoading(fresh, Reading::Done);
    m_list = std::move(fresh);
    m_repair = state->repair;
    m_savesRepaired = state->savesRepaired;
    switchToMode(state->usesTV);
    switchToSource(state->source);
    return true;
}

void TLLDocument::clearVars()
{
    history().clear();
    m_stations.reset();
    m_list.lists.setupLists();
    m_list.layout.clear();
}

bool TLLDocument::useFileURL(const QUrl &url)
{
    setFileUrl(url);
    return true;
}

Error TLLDocument::createBadFileFormatError(const QString &path, const QString &detail)
{
    return {errorDomain, -1, qtTrId("Bad file format"), path, detail};
}

Error TLLDocument::createBadFileTypeError(const QString &detail)
{
    return {errorDomain, -1, QStringLiteral("%1: %2").arg(qtTrId("kBad_file_type"), detail), {}};
}

void TLLDocument::updateStationPointer()
{
    m_stations = m_list.lists.list(m_usesTV, m_curSource);
}

void TLLDocument::switchToMode(bool isTV)
{
    m_usesTV = isTV;
    updateStationPointer();
}

void TLLDocument::switchToSource(int source)
{
    m_curSource = source;
    updateStationPointer();
}

qsizetype TLLDocument::stationCount() const
{
    return m_stations ? static_cast<qsizetype>(m_stations->size()) : 0;
}

bool TLLDocument::hasDataForSource(int source) const
{
    return m_list.lists.stationCount(source) > 0;
}

StationListPtr TLLDocument::listWithMostEntries(bool isTV) const
{
    return m_list.lists.listWithMostEntries(isTV);
}

void TLLDocument::applyOrderFromRefList(const ReferenceList &entries, const QString &fileName,
                                        EditRecord *record)
{
    if (!m_stations)
        return;
    const ReferenceOrderResult result = applyReferenceOrder(*m_stations, entries, record);
    if (!prompts())
        return;
    const Alert report{.message = qtTrId("kSortTitle").arg(fileName),
                       .informativeText = textOf(result),
                       .buttons = {qtTrId("kOK")}};
    prompts()->showAlert(sheetWindow(), report, [](const AlertAnswer &) {});
}

void TLLDocument::exportAsReferenceList()
{
    const QFileInfo file((fileUrl().isEmpty() ? suggestedUrl() : fileUrl()).toLocalFile());
    const SavePanel panel{
        .title = qtTrId("kExportTitle"),
        .suggestedPath = file.path() + u'/' + file.completeBaseName() + QLatin1String(".txt"),
        .nameFilters = {qtTrId("kFilterTextFiles") + QLatin1String(" (*.txt)"),
                        qtTrId("kFilterChannelLists") + QLatin1String(" (*.tll)")},
        .explanation = qtTrId("kExportExplanation")};
    exportDocument(panel, QStringLiteral("Reference list"), [](bool isWritten, const Error &error) {
        if (isWritten)
            qCInfo(log, "File export succeeded!");
        else if (!error.isEmpty())
            qCWarning(log).noquote()
                << QStringLiteral("File export failed: %1").arg(error.localizedDescription);
    });
}

bool TLLDocument::isValidFieldContent(const std::optional<QString> &content)
{
    return content && !content->isEmpty() && *content != QLatin1String(" ");
}

void TLLDocument::setDirtyFlag(bool dirty)
{
    updateChangeCount(dirty ? Change::Done : Change::Cleared);
}

bool TLLDocument::validateUserInterfaceItem(const QString &action) const
{
    if (action == QLatin1String("saveDocument"))
        return isDirty() || fileNews() == FileState::Change::Gone;
    if (action == QLatin1String("revertDocumentToSaved"))
        return isDirty() && suggestedUrl().isEmpty();
    if (action == QLatin1String("exportAsReferenceList"))
        return hasData();
    return false;
}

void TLLDocument::makeWindowControllers()
{
    if (m_isInvisbleDocument || !m_makeWindow)
        return;
    std::unique_ptr<TLLWindowController> controller = m_makeWindow();
    m_lgWindowController = controller.get();
    addWindowController(std::move(controller));
    m_lgWindowController->populateFromTLLDoc(*this, {});
}

bool TLLDocument::savesRepairedUnasked() const
{
    return m_repair || m_savesRepaired ||
           (m_list.isLegacyFormat && m_settings && m_settings->isOn(Setting::RepairsJSONLists));
}

/// On a copy, because the list may be edited meanwhile.
void TLLDocument::makeBytes(const QString &, SavePurpose purpose, const SaveJob::Client::Made &made)
{
    const auto snapshot = std::make_shared<ListSnapshot>(m_list, m_stations);
    const auto forms = std::make_shared<SaveForms>();
    const bool mayRepair = purpose == SavePurpose::Save;
    const auto write = [snapshot, forms, mayRepair](const BackgroundWork::IsStopped &isStopped) {
        const ListSnapshot::Copy copy = snapshot->takeCopy();
        *forms = saveForms(copy.list, copy.shown, mayRepair, isStopped);
    };
    const auto choose = [=, this](BackgroundWork::Outcome outcome) {
        switch (outcome) {
        case BackgroundWork::Outcome::Done:
            return chooseForm(forms, purpose, made);
        case BackgroundWork::Outcome::Cancelled:
            return made({}, {});
        case BackgroundWork::Outcome::NoMemory:
            return made({}, noMemory(fileUrl().toLocalFile()));
        }
    };
    workBeside(qtTrId("kReviewing").arg(displayName()), m_list.text.size(), write, choose);
}

void TLLDocument::chooseForm(const std::shared_ptr<SaveForms> &forms, SavePurpose purpose,
                             const SaveJob::Client::Made &made)
{
    // What is not written takes no room while that is.
    const auto write = [forms, made](QByteArray SaveForms::*form) {
        made(std::exchange(*forms, {}).*form, {});
    };
    m_wasUnasked = false;
    if (forms->ofPlain.isClean())
        return write(&SaveForms::plain);
    if (savesRepairedUnasked() && forms->ofRepaired && forms->ofRepaired->isClean()) {
        m_wasUnasked = !m_repair; // what a copy was repaired for needs no word
        m_savesRepaired = true;
        return write(&SaveForms::repaired);
    }
    const SaveReview review =
        reviewOfSave(displayName(), forms->ofPlain, forms->ofRepaired,
                     purpose == SavePurpose::Export        ? SaveReview::Kind::Export
                     : m_list.isLegacyFormat && m_settings ? SaveReview::Kind::JSONList
                                                           : SaveReview::Kind::List);
    ask(review.alert, [=, this, answers = review.answers](const AlertAnswer &answer) {
        using Answer = SaveReview::Answer;
        const auto button = static_cast<std::size_t>(answer.button);
        switch (button < answers.size() ? answers[button] : Answer::Cancel) {
        case Answer::SaveRepaired:
            m_savesRepaired = true;
            if (answer.isChecked && m_settings)
                m_settings->set(Setting::RepairsJSONLists, true);
            return write(&SaveForms::repaired);
        case Answer::SaveAnyway:
            return write(&SaveForms::plain);
        case Answer::Cancel:
            return made({}, {});
        }
    });
}

void TLLDocument::documentWasSaved()
{
    m_repair.reset();
}

QString TLLDocument::savedText() const
{
    const QString saved = Document::savedText();
    return m_wasUnasked ? saved + u' ' + qtTrId("kToldRepaired") : saved;
}

} // namespace quillet
