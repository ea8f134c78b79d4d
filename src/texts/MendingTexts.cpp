#include "texts/MendingTexts.h"

#include "document/repair/Mending.h"

#include <array>

namespace quillet {

namespace {

struct MendingText
{
    qsizetype Mending::*count;
    const char *id;
};

constexpr std::array mendingTexts{
    MendingText{&Mending::ampersands, "kMendedAmpersands"},
    MendingText{&Mending::brackets, "kMendedBrackets"},
    MendingText{&Mending::controls, "kMendedControls"},
    MendingText{&Mending::tags, "kMendedTags"},
    MendingText{&Mending::strays, "kMendedStrays"},
};

} // namespace

QStringList textsOf(const Mending &mending)
{
    QStringList sentences;
    for (const auto &[count, id] : mendingTexts) {
        if (mending.*count > 0)
            sentences.append(qtTrId(id, static_cast<int>(mending.*count)));
    }
    if (mending.endWasMissing)
        sentences.append(qtTrId("kMendedEnd"));
    if (mending.keptStation)
        sentences.append(qtTrId("kMendedCut"));
    if (mending.droppedStation)
        sentences.append(qtTrId("kMendedDropped"));
    return sentences;
}

} // namespace quillet
