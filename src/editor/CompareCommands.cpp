#include "editor/CompareCommands.h"

#include "document/read/ListReading.h"
#include "editor/EditorQuestions.h"
#include "editor/ListImport.h"
#include "editor/ViewController.h"
#include "files/FileNames.h"
#include "files/FileReading.h"
#include "framework/WaitCursor.h"

#include <QFileInfo>
#include <QLocale>
#include <QTime>
#include <QTimer>
#include <QUrl>

#include <new>
#include <utility>

namespace quillet {

void CompareCommands::askForFile()
{
    if (!m_controller.stationDoc())
        return;
    EditorQuestions(*m_controller.stationDoc(), m_outlets.sheetWindow(), &m_controller)
        .askForListToCompare([this](const QString &path) { compareWithFile(path); });
}

void CompareCommands::compareWithFile(const QString &path)
{
    const QString name = readable(QFileInfo(path).fileName());
    QByteArray bytes;
    Error error;
    try {
        const WaitCursor wait(QFileInfo(path).size());
        if (readFile(QUrl::fromLocalFile(path), bytes, error))
            return compareWithBytes(bytes, name);
    } catch (const std::bad_alloc &) {
        error.localizedDescription = qtTrId("kNoMemoryReason");
    }
    m_controller.showError(error.text(), qtTrId("kCompareFailed").arg(name));
}

void CompareCommands::compareWithBytes(const QByteArray &bytes, const QString &name)
{
    QString reason = qtTrId("kContentUnknownReason");
    try {
        const WaitCursor wait(bytes.size());
        if (std::optional<ChannelList> list = channelListFromBytes(bytes);
            list && list->stationCount() > 0) {
            emit m_controller.comparisonWanted(
                {.name = name,
                 .lists = std::move(list->lists),
                 .rule = numberRuleFor(m_controller.stationDoc()->list())});
            return;
        }
    } catch (const std::bad_alloc &) {
        reason = qtTrId("kNoMemoryReason");
    }
    m_controller.showError(reason, qtTrId("kCompareFailed").arg(name));
}

void CompareCommands::compareWithRead()
{
    if (const TLLDocument *document = m_controller.stationDoc(); reasonAgainstRead().isEmpty())
        compareWithBytes(document->list().text.bytes(),
                         qtTrId("kCompareNameRead").arg(document->displayName()));
}

QString CompareCommands::reasonAgainstRead() const
{
    const TLLDocument *document = m_controller.stationDoc();
    return document && !document->list().text.bytes().isEmpty() ? QString() : qtTrId("kTipNotRead");
}

/// Of copies, for the other window goes on: what is checked and told of them stays true. When they
/// were made is in the name.
void CompareCommands::compareWithDocument(const TLLDocument &other)
{
    const StationLists &lists = other.lists();
    StationLists copies = copyOf(lists);
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            const StationListPtr &list = lists.list(isTV, source);
            for (std::size_t i = 0; list && i < list->size(); ++i)
                (*copies.list(isTV, source))[i]->setRememberedName((*list)[i]->rememberedName());
        }
    }
    const WaitCursor wait(other.list().text.bytes().size());
    const QString time = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
    emit m_controller.comparisonWanted(
        {.name = qtTrId("kCompareNameWindow").arg(other.titleName(), time),
         .lists = std::move(copies),
         .rule = numberRuleFor(m_controller.stationDoc()->list())});
}

void CompareCommands::askForTable()
{
    if (!m_controller.stationDoc())
        return;
    EditorQuestions(*m_controller.stationDoc(), m_outlets.sheetWindow(), &m_controller)
        .askForTable([this](const QString &path) {
            // In a later turn, when the panel has gone.
            QTimer::singleShot(0, &m_controller, [this, path] { compareWithTable(path); });
        });
}

void CompareCommands::compareWithTable(const QString &path)
{
    if (!m_controller.stationDoc())
        return;
    QString reason;
    std::optional<ComparedWith> rows;
    {
        constexpr qint64 timesSlower = 10; // than opening a list
        const WaitCursor wait(timesSlower * QFileInfo(path).size());
        rows = importedFile(path, *m_controller.stationDoc(), reason);
    }
    if (rows)
        emit m_controller.comparisonWanted(*rows);
    else
        m_controller.showError(reason,
                               qtTrId("kImportFailed").arg(readable(QFileInfo(path).fileName())));
}

/// What the stations are by then counts, so a question may leave nothing to be taken over.
void CompareCommands::takeOver(const Plan &plan, const EditSummary &summary,
                               const std::function<void()> &done)
{
    const TakeOverParts planned = plan();
    std::size_t beyond = 0;
    for (const auto &part : planned)
        beyond += part.plan.beyond();
    m_controller.whenNumbersSuffice(beyond, [=, this](ListEditor::Beyond wanted) {
        const TLLDocument *document = m_controller.stationDoc();
        if (!document)
            return;
        const StationList selected = m_controller.shown().ownStationsAt(m_outlets.selectedRows());
        const StationListPtr list = document->stations();
        const auto parts = wanted == ListEditor::Beyond::Refused ? planned : plan();
        const bool isDone = !parts.empty() && m_editor.takeOver(parts, summary, wanted);
        if (list == document->stations())
            m_controller.reveal(selected);
        m_controller.updateButtons();
        if (isDone)
            done();
        else
            m_outlets.tell(qtTrId("kToldNotTakenOver"));
    });
}

} // namespace quillet
