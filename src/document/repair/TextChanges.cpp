#include "document/repair/TextChanges.h"

#include "document/repair/Mending.h"

#include <algorithm>

namespace quillet {

QByteArray TextChanges::appliedTo(const QByteArray &text) const
{
    std::vector<Change> changes = m_changes;
    std::stable_sort(changes.begin(), changes.end(),
                     [](const Change &a, const Change &b) { return a.at < b.at; });
    const qsizetype size = isCut() ? m_cut : text.size();
    QByteArray output;
    output.reserve(text.size() + text.size() / 8);
    qsizetype copied = 0;
    for (const Change &each : changes) {
        if (!isKept(each) || each.at < copied)
            continue;
        output.append(QByteArrayView(text).sliced(copied, each.at - copied)).append(each.text);
        copied = each.at + each.length;
    }
    if (copied < size)
        output.append(QByteArrayView(text).sliced(copied, size - copied));
    return output.append(m_end);
}

void TextChanges::countInto(Mending &mending) const
{
    mending.endWasMissing = isCut();
    for (const Change &each : m_changes) {
        if (!isKept(each))
            continue;
        switch (each.kind) {
        case Kind::Ampersand:
            ++mending.ampersands;
            break;
        case Kind::Bracket:
            ++mending.brackets;
            break;
        case Kind::Control:
            ++mending.controls;
            break;
        case Kind::Tag:
            ++mending.tags;
            break;
        case Kind::Stray:
            ++mending.strays;
            break;
        }
    }
}

} // namespace quillet
