#include "editor/CompareCommands.h"

#include "document/read/ListReading.h"
#include "editor/EditorQuestions.h"
#include "editor/ViewController.h"
#include "files/FileNames.h"
#include "files/FileReading.h"

#include <QFileInfo>
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
        if (std::optional<ChannelList> list = channelListFromBytes(bytes);
            list && list->stationCount() > 0) {
            emit m_controller.comparisonWanted({.name = name, .lists = std::move(list->lists)});
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
    const bool isChanged =
        document && (document->isDirty() || document->history().stack().count() > 0);
    return isChanged && !document->list().text.bytes().isEmpty() ? QString()
                                                                 : qtTrId("kTipNotRead");
}

/// Of copies, for the other window goes on.
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
    emit m_controller.comparisonWanted({.name = other.titleName(), .lists = std::move(copies)});
}

} // namespace quillet
