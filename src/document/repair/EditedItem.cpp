#include "document/repair/EditedItem.h"

#include "xml/XMLCharacters.h"
#include "xml/XMLWriter.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quillet {

namespace {

/// Text for the content of an element: escaped, without the characters that XML cannot hold.
QByteArray escaped(QString text)
{
    text.removeIf([](QChar c) { return !c.isSurrogate() && !isXMLCharacter(c.unicode()); });
    return XMLEncodedString(text).toUtf8();
}

QByteArray element(const QByteArray &name, const QByteArray &content)
{
    return '<' + name + '>' + content + "</" + name + '>';
}

/// Where fields may be added to an ITEM element, whose fields are given: at its end or, where the
/// text breaks off in it, behind its last whole field; negative when it has none.
qsizetype placeForFields(const QByteArray &item, const std::vector<ElementSpan> &fields,
                         bool isWhole)
{
    if (isWhole)
        return item.lastIndexOf("</");
    const auto last = std::find_if(fields.rbegin(), fields.rend(),
                                   [](const ElementSpan &field) { return field.isClosed; });
    return last == fields.rend() ? -1 : last->whole.end;
}

/// Where the blanks begin that stand before that place, on its own line and at the end of the one
/// before.
qsizetype startOfBlanks(const QByteArray &text, qsizetype place)
{
    while (place > 0 && (text[place - 1] == ' ' || text[place - 1] == '\t'))
        --place;
    if (place > 0 && text[place - 1] == '\n')
        --place;
    return place > 0 && text[place - 1] == '\r' ? place - 1 : place;
}

/// Gives the fields of that name another text, which takes the place of several. False when there
/// is none.
bool replaceText(const std::vector<ElementSpan> &fields, const QByteArray &name,
                 const QByteArray &text, std::vector<Replacement> &replacements)
{
    bool isWritten = false;
    for (const ElementSpan &field : fields) {
        if (field.name != name)
            continue;
        const bool isFirst = !std::exchange(isWritten, true);
        if (!field.isClosed)
            continue; // where it ends is not known
        if (!isFirst)
            replacements.push_back({field.whole, {}});
        else if (field.content.start == field.whole.end)
            replacements.push_back({field.whole, element(name, text)});
        else
            replacements.push_back({field.content, text});
    }
    return isWritten;
}

/// The fields of the entry that differ from the original's, in an element where each is noted and
/// stands on a line of its own; none of an element that is otherwise, or has other fields now.
std::optional<std::vector<Replacement>> editedLines(const Dictionary &original,
                                                    const Dictionary &entry)
{
    const ElementText *origin = original.origin();
    if (!origin || !origin->element.isInLines || !original.isAsNoted() ||
        entry.keys() != original.keys())
        return {};
    const char *const start = origin->bytes().data();
    std::vector<Replacement> replacements;
    for (qsizetype i = 0; i < original.count(); ++i) {
        const std::optional<QByteArrayView> before = original.bytesRead(i);
        if (before && before == entry.bytesRead(i))
            continue;
        const std::optional<QString> text = entry.text(i);
        if (!text || !before)
            return {};
        const TextSpan span{before->data() - start, before->data() - start + before->size()};
        if (text != original.text(i))
            replacements.push_back({span, escaped(*text)});
    }
    return replacements;
}

} // namespace

QByteArray replaced(const QByteArray &text, std::vector<Replacement> replacements)
{
    std::sort(replacements.begin(), replacements.end(),
              [](const auto &a, const auto &b) { return a.span.start < b.span.start; });
    QByteArray result;
    result.reserve(text.size() + text.size() / 8);
    qsizetype next = 0;
    for (const auto &[span, replacement] : replacements) {
        result.append(QByteArrayView(text).sliced(next, span.start - next));
        result.append(replacement);
        next = span.end;
    }
    return result.append(QByteArrayView(text).sliced(next));
}

QByteArray editedItem(const QByteArray &item, const Dictionary &original, const Dictionary &entry,
                      bool isWhole)
{
    if (std::optional<std::vector<Replacement>> lines = editedLines(original, entry))
        return replaced(item, *std::move(lines));
    const std::vector<ElementSpan> fields = elementSpans(item, {{}, {}});
    std::vector<Replacement> replacements;
    QByteArray added;
    for (const auto &[key, value] : entry) {
        const Value *before = original.find(key);
        const QString *text = value.string();
        if (!text || (before && *before == value))
            continue;
        const QByteArray name = key.toUtf8();
        const QByteArray content = escaped(*text);
        if (!replaceText(fields, name, content, replacements))
            added += element(name, content) + (item.contains("\r\n") ? "\r\n" : "\n");
    }
    for (const ElementSpan &field : fields) {
        const QString key = QString::fromUtf8(field.name);
        if (field.isClosed && original.contains(key) && !entry.contains(key))
            replacements.push_back({{startOfBlanks(item, field.whole.start), field.whole.end}, {}});
    }
    const qsizetype end = placeForFields(item, fields, isWhole);
    if (end >= 0 && !added.isEmpty())
        replacements.push_back({{end, end}, added});
    return replaced(item, std::move(replacements));
}

} // namespace quillet
