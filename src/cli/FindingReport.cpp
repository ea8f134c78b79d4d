#include "cli/FindingReport.h"

#include "cli/Console.h"
#include "cli/JsonReport.h"
#include "document/list/ChannelList.h"
#include "document/repair/FileDiagnosis.h"
#include "texts/FindingTexts.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using Kind = FileFinding::Kind;

struct KindName
{
    Kind kind;
    const char *name;
};

constexpr std::array kindNames{
    KindName{Kind::Damaged, "damaged"},   KindName{Kind::Latin1, "not-utf-8"},
    KindName{Kind::BinaryList, "binary"}, KindName{Kind::NoXML, "not-xml"},
    KindName{Kind::BadJSON, "bad-json"},  KindName{Kind::Declaration, "wrong-declaration"},
};

QString nameOf(Kind kind)
{
    const auto *const found =
        std::find_if(kindNames.begin(), kindNames.end(),
                     [kind](const KindName &each) { return each.kind == kind; });
    return QLatin1String(found->name);
}

} // namespace

Value jsonFindings(const ChannelList &list)
{
    Array array;
    for (const FileFinding &finding : diagnose(list)) {
        Dictionary object{{QStringLiteral("kind"), nameOf(finding.kind)},
                          {QStringLiteral("text"), textOf(finding)}};
        if (finding.line > 0) {
            object.insert(QStringLiteral("line"), Value(qint64(finding.line)));
            object.insert(QStringLiteral("column"), Value(qint64(finding.column)));
        }
        if (finding.unread > 0)
            object.insert(QStringLiteral("unread"), Value(qint64(finding.unread)));
        array.append(object);
    }
    if (list.beyondLastNumber > 0)
        array.append(Dictionary{
            {QStringLiteral("kind"), QStringLiteral("numbers-exhausted")},
            {QStringLiteral("text"), findingTexts(list).constLast()},
            {QStringLiteral("stations"), jsonNumber(list.beyondLastNumber)},
        });
    return array;
}

void tellFindings(const QString &file, const ChannelList &list, Console &console)
{
    for (const QString &text : findingTexts(list))
        console.tell(file, text);
}

} // namespace quillet
