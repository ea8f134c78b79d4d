#include "editor/EditorQuestions.h"

#include "document/TLLDocument.h"
#include "document/edit/Renumbering.h"
#include "framework/Prompts.h"
#include "support/LenientNumber.h"

#include <QPointer>

#include <utility>

namespace quillet {

EditorQuestions::EditorQuestions(TLLDocument &document, QWidget *window, QObject *context)
    : m_document(document), m_window(window), m_context(context)
{
}

void EditorQuestions::askForNumber(qsizetype stations, std::function<void(qint64)> answered,
                                   std::function<void()> refused) const
{
    if (!m_document.prompts())
        return;
    const Alert alert{.message = qtTrId("kMovingMessage", static_cast<int>(stations)),
                      .informativeText = {},
                      .buttons = {qtTrId("kMovingOK"), qtTrId("kCancel")},
                      .cancelButton = 1,
                      .asksForText = true};
    const auto check = [answered = std::move(answered), refused = std::move(refused),
                        guard = QPointer(m_context)](const AlertAnswer &answer) {
        const qint64 number = lenientInteger(answer.text);
        if (!guard || answer.button != 0)
            return;
        if (number >= 1 && number <= highestTarget)
            answered(number);
        else
            refused();
    };
    m_document.prompts()->showAlert(m_window, alert, check);
}

void EditorQuestions::askToGoBeyond(std::size_t stations, std::function<void(bool)> answered) const
{
    if (!m_document.prompts())
        return;
    const Alert alert{
        .message = qtTrId("kBeyondMessage", static_cast<int>(stations)).arg(LGStation::progNumMask),
        .informativeText = qtTrId("kBeyondText").arg(LGStation::progNumMask),
        .buttons = {qtTrId("kCancel"), qtTrId("kBeyondAnyway")},
        .cancelButton = 0,
        .destructiveButton = 1};
    const auto check = [answered = std::move(answered),
                        guard = QPointer(m_context)](const AlertAnswer &answer) {
        if (guard)
            answered(answer.button == 1);
    };
    m_document.prompts()->showAlert(m_window, alert, check);
}

void EditorQuestions::askToReplace(std::function<void()> confirmed) const
{
    if (!m_document.prompts())
        return;
    const Alert alert{.message = qtTrId("kReplaceMessage").arg(m_document.displayName()),
                      .informativeText = qtTrId("kReplaceDetail"),
                      .buttons = {qtTrId("kCancel"), qtTrId("kDiscardChanges")},
                      .cancelButton = 0,
                      .destructiveButton = 1};
    const auto check = [confirmed = std::move(confirmed),
                        guard = QPointer(m_context)](const AlertAnswer &answer) {
        if (guard && answer.button == 1)
            confirmed();
    };
    m_document.prompts()->showAlert(m_window, alert, check);
}

std::function<void(const QStringList &)> EditorQuestions::firstOf(const FileChosen &chosen) const
{
    return [chosen, guard = QPointer(m_context)](const QStringList &paths) {
        if (guard && !paths.isEmpty())
            chosen(paths.front());
    };
}

void EditorQuestions::askForReferenceList(
    const std::function<void(const QString &)> &chosen,
    const std::function<void(const QString &)> &previewed) const
{
    if (!m_document.prompts())
        return;
    const OpenPanel panel{
        .title = qtTrId("kApplyOrderTitle"),
        .directory = m_document.folder(),
        .nameFilters = {qtTrId("kFilterReferenceLists") + QLatin1String(" (*.txt *.tll)"),
                        qtTrId("kFilterAllFiles") + QLatin1String(" (*)")},
        .otherButton = qtTrId("kPreviewOrder"),
        .otherChosen = firstOf(previewed)};
    m_document.prompts()->showOpenPanel(m_window, panel, firstOf(chosen));
}

void EditorQuestions::askForTable(const FileChosen &chosen) const
{
    if (!m_document.prompts())
        return;
    const OpenPanel panel{
        .title = qtTrId("kImportTitle"),
        .directory = m_document.folder(),
        .nameFilters = {qtTrId("kFilterTables") + QLatin1String(" (*.csv *.tsv *.txt)"),
                        qtTrId("kFilterAllFiles") + QLatin1String(" (*)")}};
    m_document.prompts()->showOpenPanel(m_window, panel, firstOf(chosen));
}

void EditorQuestions::askForListToCompare(const FileChosen &chosen) const
{
    if (!m_document.prompts())
        return;
    const OpenPanel panel{.title = qtTrId("kCompareFileTitle"),
                          .directory = m_document.folder(),
                          .nameFilters = {qtTrId("kFilterChannelLists") + QLatin1String(" (*.tll)"),
                                          qtTrId("kFilterAllFiles") + QLatin1String(" (*)")}};
    m_document.prompts()->showOpenPanel(m_window, panel, firstOf(chosen));
}

void EditorQuestions::showError(const QString &message, const QString &detail) const
{
    if (!m_document.prompts())
        return;
    const Alert alert{.message = message, .informativeText = detail, .buttons = {qtTrId("kOK")}};
    m_document.prompts()->showAlert(m_window, alert, [](const AlertAnswer &) {});
}

} // namespace quillet
