#pragma once

#include "document/TLLDocument.h"
#include "document/edit/StationEdits.h"
#include "editor/ListChange.h"

#include <QObject>
#include <QPointer>

namespace quillet {

/// The one gate for edits: every change of a station or of the order of a list is made here, marks
/// the document changed and is told. Works on the document's current list; asked for
/// stations of another one it does nothing. Shows nothing but the document's own report of an
/// order. Owned by the window's ViewController; holds the document weakly, without which nothing
/// may be asked of it.
class ListEditor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void setDocument(TLLDocument *document) { m_document = document; }

    /// Moves stations (at least one) to a number as moveElemList() does. Returns the numbers, as
    /// text, that should be selected afterwards.
    QStringList move(const StationList &stations, qint64 target, bool fillGaps);
    /// Numbers the list 1, 2, 3 and so on. Without a gap nothing changes.
    void closeGaps();
    void rename(const StationPtr &station, const QString &name);
    void setFlag(const StationList &stations, StationFlag flag, bool set);
    /// Imposes a reference list. The file name is for the document's report.
    void applyOrder(const ReferenceList &entries, const QString &fileName);

signals:
    void changed(const quillet::ListChange &change);

private:
    void tell(ListChange::Kind kind, std::vector<ListStretch> places, StationFields fields);
    [[nodiscard]] StationList &list() const { return *m_document->stations(); }

    QPointer<TLLDocument> m_document;
};

} // namespace quillet
