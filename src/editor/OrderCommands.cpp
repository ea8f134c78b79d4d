#include "editor/OrderCommands.h"

#include "document/ReferenceListFile.h"
#include "editor/EditorQuestions.h"
#include "editor/ViewController.h"
#include "files/FileNames.h"
#include "framework/WaitCursor.h"

#include <QFileInfo>
#include <QTimer>

#include <utility>

namespace quillet {

namespace {

QString nameOf(const QString &path)
{
    return readable(QFileInfo(path).fileName());
}

} // namespace

void OrderCommands::askForFile()
{
    if (!m_controller.stationDoc())
        return;
    // In a later turn, when the panel has gone.
    const auto later = [this](void (OrderCommands::*next)(const QString &)) {
        return [this, next](const QString &path) {
            QTimer::singleShot(0, &m_controller, [this, next, path] { (this->*next)(path); });
        };
    };
    EditorQuestions(*m_controller.stationDoc(), m_outlets.sheetWindow(), &m_controller)
        .askForReferenceList(later(&OrderCommands::applyFile), later(&OrderCommands::previewFile));
}

void OrderCommands::applyFile(const QString &path)
{
    if (const ReferenceList entries = read(path, false); !entries.empty())
        apply(entries, nameOf(path));
}

void OrderCommands::previewFile(const QString &path)
{
    if (ReferenceList entries = read(path, true); !entries.empty())
        emit m_controller.comparisonWanted({.purpose = ComparedWith::Purpose::Order,
                                            .name = nameOf(path),
                                            .lists = {},
                                            .entries = std::move(entries)});
}

ReferenceList OrderCommands::read(const QString &path, bool tellsType)
{
    if (!m_controller.stationDoc())
        return {};
    QString reason;
    ReferenceList entries;
    {
        const WaitCursor wait(QFileInfo(path).size());
        entries = referenceListFromFile(path, m_controller.isModeTV(), reason);
    }
    if (reason.isEmpty() && tellsType)
        reason = qtTrId("kOrderWrongType");
    if (entries.empty() && !reason.isEmpty())
        m_controller.showError(reason, qtTrId("kOrderEmpty").arg(nameOf(path)));
    return entries;
}

void OrderCommands::apply(const ReferenceList &entries, const QString &fileName)
{
    if (!m_controller.stationDoc())
        return;
    m_controller.whenNumbersSuffice(m_editor.beyondAfterOrder(entries),
                                    [this, entries, fileName](ListEditor::Beyond beyond) {
                                        m_outlets.selectRows({});
                                        m_editor.applyOrder(entries, fileName, beyond);
                                        m_controller.updateButtons();
                                        m_controller.saveSelection();
                                    });
}

} // namespace quillet
