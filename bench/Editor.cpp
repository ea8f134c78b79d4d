#include "bench/Editor.h"

#include "bench/Document.h"
#include "document/edit/Renumbering.h"

#include <algorithm>
#include <utility>

namespace quillet::bench {

Editor::Editor(const QByteArray &file) : m_controller(m_outlets)
{
    if (!load(m_document, file))
        return;
    m_controller.populateFromTLLDoc(m_document, {});
    for (const StationSource source : stationSources) {
        const int index = static_cast<int>(source);
        for (const bool isTV : {true, false}) {
            const StationListPtr &list = m_document.lists().list(isTV, index);
            if (list != m_document.stations())
                stations().insert(stations().end(), list->begin(), list->end());
        }
    }
    EditRecord unused;
    closeGaps(stations(), unused);
    m_isReady = isNumberedWell();
}

void Editor::makeStationsAnew()
{
    m_before = std::move(stations());
    stations().clear();
    for (const StationPtr &station : m_before)
        stations().push_back(std::make_shared<LGStation>(station->entry(), station->origPos()));
}

void Editor::search(const QString &text)
{
    m_outlets.search = text;
    m_controller.textDidChange();
}

bool Editor::isNumberedWell()
{
    qint64 last = 0;
    return stations().size() == m_document.lists().roll().size() &&
           std::all_of(stations().begin(), stations().end(), [&last](const StationPtr &station) {
               const qint64 before = std::exchange(last, station->progNum());
               return before < last;
           });
}

} // namespace quillet::bench
