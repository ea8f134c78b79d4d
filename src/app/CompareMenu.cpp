#include "app/CompareMenu.h"

#include "app/LGWindowController.h"
#include "document/TLLDocument.h"
#include "editor/EditorView.h"
#include "framework/DocumentController.h"

#include <QMenu>
#include <QPointer>

namespace quillet {

CompareMenu::CompareMenu(LGWindowController &window, DocumentController &documents, QMenu &menu,
                         QAction &versions, QObject *parent)
    : QObject(parent), m_window(window), m_documents(documents),
      m_menu(menu.addMenu(qtTrId("kMenuCompare")))
{
    m_menu->setObjectName(QStringLiteral("compareMenu"));
    m_menu->setToolTipsVisible(true);
    EditorView &editor = m_window.editor();
    m_file = m_menu->addAction(qtTrId("kMenuCompareFile"));
    m_file->setObjectName(QStringLiteral("compareWithFile"));
    connect(m_file, &QAction::triggered, this, [&editor] {
        editor.commitEditing();
        editor.controller().comparing().askForFile();
    });
    m_read = m_menu->addAction(qtTrId("kMenuCompareRead"));
    m_read->setObjectName(QStringLiteral("compareWithRead"));
    connect(m_read, &QAction::triggered, this, [&editor] {
        editor.commitEditing();
        editor.controller().comparing().compareWithRead();
    });
    m_menu->addAction(&versions);
    connect(m_menu, &QMenu::aboutToShow, this, [this] {
        validate();
        listWindows();
    });
}

void CompareMenu::validate()
{
    const TLLDocument *document = m_window.tlldoc();
    const bool hasStations = document && document->list().stationCount() > 0;
    m_file->setEnabled(hasStations);
    m_file->setToolTip(hasStations ? QString() : qtTrId("kTipNoStations"));
    const QString reason = m_window.editor().controller().comparing().reasonAgainstRead();
    m_read->setEnabled(reason.isEmpty());
    m_read->setToolTip(reason);
}

void CompareMenu::listWindows()
{
    for (QAction *each : std::as_const(m_windows))
        delete each;
    m_windows.clear();
    for (const auto &each : m_documents.documents()) {
        auto *other = qobject_cast<TLLDocument *>(each.get());
        if (!other || other == m_window.tlldoc() || other->list().stationCount() == 0)
            continue;
        if (m_windows.isEmpty())
            m_windows.append(m_menu->addSeparator());
        QAction *action = m_menu->addAction(other->titleName().replace(u'&', QLatin1String("&&")));
        action->setEnabled(m_file->isEnabled());
        connect(action, &QAction::triggered, this, [this, guard = QPointer(other)] {
            m_window.editor().commitEditing();
            if (guard)
                m_window.editor().controller().comparing().compareWithDocument(*guard);
        });
        m_windows.append(action);
    }
}

} // namespace quillet
