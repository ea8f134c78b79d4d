#pragma once

#include "document/TLLDocument.h"
#include "document/edit/Arranging.h"
#include "document/edit/Renumbering.h"
#include "document/edit/StationEdits.h"
#include "document/rows/TakeOverParts.h"
#include "editor/ListChange.h"

#include <QObject>
#include <QPointer>

namespace quillet {

/// The one gate for edits: every change of a station or of the order of a list is made here,
/// becomes a step of the document's history and is told; and so is its undoing. Works on the
/// document's current list, but for what puts back a whole version or takes over from other lists;
/// asked for stations of another list it does nothing. An edit that changes nothing leaves no step,
/// but a reference list counts as a change by itself. Shows nothing but the document's own report
/// of an order. Owned by the window's ViewController; holds the document weakly, without which
/// nothing may be asked of it.
///
/// An edit that would give a station a number that it cannot carry is made only when that is said
/// to be wanted, whatever way it comes here.
class ListEditor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void setDocument(TLLDocument *document) { m_document = document; }

    /// What becomes of numbers that cannot be carried.
    enum class Beyond { Refused, Wanted };

    /// What moving stations (at least one) to a number would do; empty for ones of another list.
    [[nodiscard]] MovePlan planMove(const StationList &stations, qint64 target, bool fillGaps,
                                    Removal removal = Removal::ByNumber) const;
    /// Carries out a plan that was made of the list as it is. Returns whether it did, also when
    /// everything stood there already.
    bool move(const MovePlan &plan, Beyond beyond = Beyond::Refused);
    /// Carries out a plan that was made of the list as it is, to give stations other places.
    void arrange(const ArrangePlan &plan, const StationList &stations, EditSummary::Kind kind,
                 Beyond beyond = Beyond::Refused);
    /// How many stations would get a number that they cannot carry.
    [[nodiscard]] std::size_t beyondAfterClosingGaps() const;
    [[nodiscard]] std::size_t beyondAfterOrder(const ReferenceList &entries) const;
    /// Numbers the list 1, 2, 3 and so on. Without a gap nothing changes.
    void closeGaps(Beyond beyond = Beyond::Refused);
    void rename(const StationPtr &station, const QString &name);
    void setFlag(const StationList &stations, StationFlag flag, bool set);
    /// Imposes a reference list. The file name is for the document's report.
    void applyOrder(const ReferenceList &entries, const QString &fileName,
                    Beyond beyond = Beyond::Refused);
    /// Makes all lists of the document what they are in that version, whose stations must be the
    /// same one to one; they become part of the step. The name is that of the version, for people.
    /// Returns whether everything is so now.
    bool putBack(const ChannelList &version, const QString &name);

    /// Carries out plans, each made of another list of the document as it is, as one step, which
    /// the summary tells. Returns whether it did, also when nothing was to be changed.
    bool takeOver(const TakeOverParts &parts, const EditSummary &summary,
                  Beyond beyond = Beyond::Refused);

    /// Tells the changes of one edit, each of another list.
    void tell(std::vector<ListChange> changes);

signals:
    void changed(const quillet::ListChange &change);

private:
    void push(ListChange change, EditRecord record);
    /// Of several lists; without any it comes to nothing.
    void push(std::vector<ListChange> changes, std::vector<EditRecord> records);
    [[nodiscard]] bool isListOfDocument(const StationListPtr &list) const;
    [[nodiscard]] StationList &list() const { return *m_document->stations(); }

    QPointer<TLLDocument> m_document;
};

} // namespace quillet
