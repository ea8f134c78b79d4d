#include "files/NotKeptTexts.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

struct NotKeptText
{
    NotKept what;
    const char *id;
};

constexpr std::array notKeptTexts{
    NotKeptText{NotKept::Owner, "kNotKeptOwner"},
    NotKeptText{NotKept::Group, "kNotKeptGroup"},
    NotKeptText{NotKept::AccessList, "kNotKeptAccessList"},
    NotKeptText{NotKept::Permissions, "kNotKeptPermissions"},
    NotKeptText{NotKept::Attributes, "kNotKeptAttributes"},
    NotKeptText{NotKept::HardLinks, "kNotKeptHardLinks"},
};

} // namespace

QString textOf(const std::vector<NotKept> &notKept)
{
    QStringList losses;
    for (const auto &[what, id] : notKeptTexts) {
        if (std::find(notKept.begin(), notKept.end(), what) != notKept.end())
            losses.append(qtTrId(id));
    }
    return losses.join(QLatin1String("; "));
}

} // namespace quillet
