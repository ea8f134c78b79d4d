#include "document/TLLDocument.h"

#include "document/ReferenceOrder.h"
#include "document/Rehearsal.h"
#include "document/RepairedWriter.h"
#include "document/SaveReview.h"
#include "document/TLLWindowController.h"
#include "document/TLLWriter.h"
#include "framework/Prompts.h"
#include "support/KXFileLog.h"
#include "support/TextConversion.h"
#include "xml/NodeViews.h"
#include "xml/XMLDictionaryParser.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>

#include <algorithm>
#include <array>
#include <tuple>

namespace quillet {

namespace {

Q_LOGGING_CATEGORY(log, "quillet.document")

constexpr QLatin1String errorDomain("org.quillet.Quillet");

/// In the order in which they are read and written.
constexpr std::array<QStringView, 2> sections{u"ATV", u"DTV"};

QString logName()
{
    return QStringLiteral("XT");
}

/// The text of an element, which the parser made a dictionary or, without attributes, a string.
QString elementText(const Value *element)
{
    if (!element)
        return {};
    if (const QString *text = element->string())
        return *text;
    const Dictionary *node = element->dictionary();
    return node ? innerText(*node).value_or(QString()) : QString();
}

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
    std::optional<FileText> text = FileText::decode(data);
    if (!text)
        return false;
    m_text = *std::move(text);

    XMLDictionaryParser parser(XMLDictionaryParser::sharedInstance());
    std::optional<Dictionary> tree =
        m_text.encoding() == TextEncoding::Utf8
            ? parser.dictionaryWithData(m_text.utf8()) // the very bytes that the text is encoded to
            : parser.dictionaryWithString(m_text.toString());
    m_xmlDictionary = std::move(tree).value_or(Dictionary());
    m_parseError = parser.firstError();
    m_repair.reset();

    m_isLegacyFormat = isFormatWithLegacybroadcast();
    if (m_isLegacyFormat) {
        readLegacyBroadcast();
        return true;
    }
    if (extractStations() < 0 ||
        !m_layout.locate(m_text, m_analogStations >= 1, m_digitalStations >= 1)) {
        error = createBadFileFormatError(typeName, badFormatDetail());
        return false;
    }
    if (m_lgWindowController)
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

/// Which section made the file one of a bad format, and why.
QString TLLDocument::badFormatDetail() const
{
    QStringList lines;
    const Dictionary *channel = m_xmlDictionary.dictionary(u"CHANNEL");
    const auto isMalformed = [channel](QStringView name) {
        const Value *section = channel ? channel->find(name) : nullptr;
        return section && !section->dictionary();
    };
    const auto malformed = std::find_if(sections.begin(), sections.end(), isMalformed);
    if (malformed != sections.end())
        lines.append(qtTrId("kBadSectionContent").arg(*malformed));
    else if (const auto &item = m_layout.distantItem())
        lines.append(qtTrId("kBadSectionDistance", static_cast<int>(item->distance))
                         .arg(item->section)
                         .arg(FileLayout::longestDistance));
    if (m_parseError)
        lines.append(qtTrId("kNoticeDamagedLine").arg(m_parseError->line));
    return lines.join(u'\n');
}

bool TLLDocument::isFormatWithLegacybroadcast() const
{
    const Dictionary *channel = m_xmlDictionary.dictionary(u"CHANNEL");
    return channel && channel->contains(u"legacybroadcast");
}

void TLLDocument::readLegacyBroadcast()
{
    const Dictionary *channel = m_xmlDictionary.dictionary(u"CHANNEL");
    const QByteArray json = getAsData(elementText(channel->find(u"legacybroadcast")));
    const qsizetype count = m_legacyBroadcast.extractLegacyStations(json, m_lists);
    qCInfo(log, "Found legacy stations: %d", static_cast<int>(count));
    m_layout.locateLegacy(m_text);
}

/// Files every ITEM into the lists. Returns the number of stations, or -1 when a section is
/// malformed.
qsizetype TLLDocument::extractStations()
{
    m_lists.setupLists();
    if (const Dictionary *channel = m_xmlDictionary.dictionary(u"CHANNEL")) {
        for (const QStringView section : sections) {
            if (!extractSection(*channel, section))
                return -1;
        }
    }
    qsizetype total = 0;
    for (const StationSource source : stationSources) {
        const int index = static_cast<int>(source);
        StationList &tv = *m_lists.list(true, index);
        StationList &radio = *m_lists.list(false, index);
        StationLists::sortAndValidateStations(tv);
        StationLists::sortAndValidateStations(radio);
        total += m_lists.stationCount(index);
        if (source == StationSource::Antenna)
            m_digitalStations = total;
        else if (source == StationSource::Analogue)
            m_analogStations = total - m_digitalStations;
        LogToFile(logName(), "TV[%i] = %ld", index, static_cast<long>(tv.size()));
        LogToFile(logName(), "Radio[%i] = %ld", index, static_cast<long>(radio.size()));
    }
    return total;
}

bool TLLDocument::extractSection(const Dictionary &channel, QStringView name)
{
    const Value *section = channel.find(name);
    if (!section)
        return true;
    if (!section->dictionary())
        return false;
    const Value *items = section->dictionary()->find(u"ITEM");
    if (!items)
        return true;
    using Section = FilePlace::Section;
    const Section place = name == u"ATV" ? Section::ATV : Section::DTV;
    // A section with one station holds it alone, not in a list.
    const Array list = items->array() ? *items->array() : Array{*items};
    qint64 index = 0;
    for (const Value &item : list) {
        const qint64 position = index++;
        if (!item.dictionary())
            continue;
        auto station = std::make_shared<LGStation>(*item.dictionary(), position);
        if (!m_lists.fileStation(station, {place, position})) {
            const QString message =
                QStringLiteral("\n### Unknown station source: %1").arg(station->description());
            qCWarning(log).noquote() << message;
            LogToFile(logName(), "%ls", qUtf16Printable(message));
        }
    }
    return true;
}

QByteArray TLLDocument::dataOfType(const QString &, Error &)
{
    return writeTLL(*this);
}

bool TLLDocument::replaceContent(const QByteArray &data, const QString &typeName, Error &error)
{
    TLLDocument fresh;
    fresh.m_layout = m_layout; // lengths that a file does not give stay those of the one before
    if (!fresh.readFromData(data, typeName, error))
        return false;
    const auto content = [](TLLDocument &of) {
        return std::tie(of.m_text, of.m_xmlDictionary, of.m_parseError, of.m_repair, of.m_layout,
                        of.m_legacyBroadcast, of.m_lists, of.m_digitalStations, of.m_analogStations,
                        of.m_isLegacyFormat, of.m_savesRepaired);
    };
    content(*this) = content(fresh);
    return true;
}

void TLLDocument::clearVars()
{
    m_stations.reset();
    m_lists.setupLists();
    m_layout.clear();
}

bool TLLDocument::useFileURL(const QUrl &url)
{
    setFileUrl(url);
    return true;
}

std::optional<QString> TLLDocument::modelName() const
{
    const Value *modelInfo = m_xmlDictionary.find(u"ModelInfo");
    if (!modelInfo)
        return {};
    const Dictionary *info = modelInfo->dictionary();
    const QString name = elementText(info ? info->find(u"ModelName") : modelInfo);
    return name.isEmpty() ? std::nullopt : std::optional(name);
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
    m_stations = m_lists.list(m_usesTV, m_curSource);
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
    return m_lists.stationCount(source) > 0;
}

StationListPtr TLLDocument::listWithMostEntries(bool isTV) const
{
    return m_lists.listWithMostEntries(isTV);
}

void TLLDocument::applyOrderFromRefList(const ReferenceList &entries, const QString &fileName)
{
    if (!m_stations)
        return;
    const ReferenceOrderResult result = applyReferenceOrder(*m_stations, entries);
    if (!prompts())
        return;
    const Alert report{.message = qtTrId("kSortTitle").arg(fileName),
                       .informativeText = qtTrId("kSortStatistics")
                                              .arg(result.matched)
                                              .arg(result.remaining)
                                              .arg(result.last + 1),
                       .buttons = {qtTrId("kOK")}};
    prompts()->showAlert(sheetWindow(), report, [](const AlertAnswer &) {});
}

void TLLDocument::exportAsReferenceList()
{
    const QFileInfo file((fileUrl().isEmpty() ? suggestedUrl() : fileUrl()).toLocalFile());
    const SavePanel panel{.title = qtTrId("kExportTitle"),
                          .suggestedPath =
                              file.path() + u'/' + file.completeBaseName() + QLatin1String(".txt"),
                          .nameFilters = {qtTrId("kFilterTextFiles") + QLatin1String(" (*.txt)")}};
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
    m_dirty = dirty;
    if (dirty)
        updateChangeCount(Change::Done);
}

bool TLLDocument::validateUserInterfaceItem(const QString &action) const
{
    if (action == QLatin1String("saveDocument"))
        return m_dirty;
    if (action == QLatin1String("revertDocumentToSaved"))
        return m_dirty && suggestedUrl().isEmpty();
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
           (m_isLegacyFormat && QSettings().value(SaveReview::alwaysKey).toBool());
}

void TLLDocument::reviewSave(const QByteArray &bytes, SavePurpose purpose,
                             const SaveJob::Client::Decided &decided)
{
    m_wasUnasked = false;
    const Rehearsal plain = rehearse(*this, bytes);
    if (plain.isClean())
        return decided(bytes);
    QByteArray repaired;
    std::optional<Rehearsal> ofRepaired; // of a better writing than the plain one
    if (purpose == SavePurpose::Save) {
        repaired = repairedTLL(*this);
        ofRepaired = rehearse(*this, repaired);
        if (savesRepairedUnasked() && ofRepaired->isClean()) {
            m_wasUnasked = !m_repair; // what a copy was repaired for needs no word
            return decided(repaired);
        }
        if (ofRepaired->weight() >= plain.weight())
            ofRepaired.reset();
    }
    const SaveReview review = reviewOfSave(displayName(), plain, ofRepaired,
                                           purpose == SavePurpose::Export ? SaveReview::Kind::Export
                                           : m_isLegacyFormat ? SaveReview::Kind::JSONList
                                                              : SaveReview::Kind::List);
    ask(review.alert, [=, this, answers = review.answers](const AlertAnswer &answer) {
        using Answer = SaveReview::Answer;
        const auto button = static_cast<std::size_t>(answer.button);
        switch (button < answers.size() ? answers[button] : Answer::Cancel) {
        case Answer::SaveRepaired:
            m_savesRepaired = true;
            if (answer.isChecked)
                QSettings().setValue(SaveReview::alwaysKey, true);
            return decided(repaired);
        case Answer::SaveAnyway:
            return decided(bytes);
        case Answer::Cancel:
            return decided({});
        }
    });
}

void TLLDocument::documentWasSaved()
{
    m_savesRepaired = m_savesRepaired || m_repair;
    m_repair.reset();
    setDirtyFlag(false);
    Document::documentWasSaved();
    if (m_wasUnasked)
        emit told(qtTrId("kToldRepaired"));
}

} // namespace quillet
