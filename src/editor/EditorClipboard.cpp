#include "editor/EditorClipboard.h"

#include "editor/StationClipboard.h"
#include "editor/TableColumns.h"
#include "editor/ViewController.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTableView>

#include <utility>

namespace quillet {

namespace {

/// What text is being typed into.
QLineEdit *fieldInFocus()
{
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

} // namespace

EditorClipboard::EditorClipboard(const QTableView &list, const EditorOutlets &outlets,
                                 ViewController &controller)
    : m_list(list), m_outlets(outlets), m_controller(controller)
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this,
            &EditorClipboard::forgetLook);
}

void EditorClipboard::copy()
{
    if (const auto *field = fieldInFocus())
        return field->copy();
    const StationList selected = m_controller.shown().stationsAt(m_outlets.selectedRows());
    if (selected.empty())
        return; // what is on the clipboard stays there
    QGuiApplication::clipboard()->setMimeData(
        copiedStations(m_controller, selected, shownColumns(m_list)).release());
}

QString EditorClipboard::reasonAgainstCopying() const
{
    return fieldInFocus() || !m_outlets.selectedRows().isEmpty() ? QString()
                                                                 : qtTrId("kTipSelectFirst");
}

void EditorClipboard::paste()
{
    if (auto *field = fieldInFocus())
        field->paste();
    else if (const QMimeData *held = QGuiApplication::clipboard()->mimeData())
        m_controller.paste(*held);
}

QString EditorClipboard::reasonAgainstPasting() const
{
    if (fieldInFocus())
        return {};
    const QString reason = m_controller.pasting().reasonAgainst();
    return reason.isEmpty() && !m_mayPaste ? qtTrId("kTipNothingToPaste") : reason;
}

void EditorClipboard::look()
{
    const QMimeData *held = QGuiApplication::clipboard()->mimeData();
    m_mayPaste = held && mayHoldStations(*held);
}

/// It is not looked at at once, for its program may not answer.
void EditorClipboard::forgetLook()
{
    if (!std::exchange(m_mayPaste, true))
        emit stateChanged();
}

} // namespace quillet
