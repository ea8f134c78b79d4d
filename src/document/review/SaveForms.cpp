#include "document/review/SaveForms.h"

#include "document/repair/RepairedWriter.h"
#include "document/write/TLLWriter.h"

namespace quillet {

SaveForms saveForms(const ChannelList &list, const StationListPtr &shown, bool mayRepair,
                    const std::function<bool()> &isStopped)
{
    const auto mustGoOn = [&isStopped] { return !isStopped || !isStopped(); };
    SaveForms forms;
    forms.plain = writeTLL(list, shown);
    if (mustGoOn())
        forms.ofPlain = rehearse(list, forms.plain);
    if (forms.ofPlain.isClean() || !mayRepair || !mustGoOn())
        return forms;
    forms.repaired = repairedTLL(list);
    if (!mustGoOn())
        return forms;
    forms.ofRepaired = rehearse(list, forms.repaired);
    if (forms.ofRepaired->weight() >= forms.ofPlain.weight()) {
        forms.ofRepaired.reset();
        forms.repaired.clear();
    }
    return forms;
}

} // namespace quillet
