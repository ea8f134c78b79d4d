#pragma once

#include "document/repair/OpenElements.h"
#include "document/repair/TextScanner.h"

#include <QHash>

namespace quillet {

class TextChanges;
struct Mending;

/// Decides what a start or end tag means where they do not fit each other, and notes the changes
/// that make them fit. It is given the tags of a text from the first to the last.
class TagMending
{
public:
    TagMending(const TextScanner &scanner, TextChanges &changes)
        : m_scanner(scanner), m_changes(changes)
    {
    }

    [[nodiscard]] const OpenElements &open() const { return m_open; }
    [[nodiscard]] bool hadRoot() const { return m_hadRoot; }
    /// Nothing can be told of what was meant.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

    void startElement(qsizetype at, const ScannedTag &tag);
    void endElement(qsizetype at, const ScannedTag &tag);
    /// The text ends too early, at the cut if there is one: gives up the element that was cut, and
    /// closes those around it.
    void closeAtEnd();
    void countInto(Mending &mending) const;

private:
    void endUnopened(qsizetype at, const ScannedTag &tag);
    void endMisnamed(qsizetype at, const ScannedTag &tag);
    void endEnclosing(std::size_t index, qsizetype at, const ScannedTag &tag);
    void closeWhatCannotHold(QByteArrayView name, qsizetype at);
    void closeDownTo(std::size_t size, qsizetype at);
    void pop(qsizetype end);
    [[nodiscard]] int endTagsNamed(QByteArrayView name);
    [[nodiscard]] qsizetype endOfText(const OpenElement &element, qsizetype at) const;

    const TextScanner &m_scanner;
    TextChanges &m_changes;
    OpenElements m_open;
    QHash<QByteArrayView, int> m_endTags; ///< how many there are of a name, once that was asked for
    QByteArrayView m_lastName;            ///< of the end tag read last
    qsizetype m_lastEnd = 0;
    bool m_hadRoot = false;
    bool m_hasFailed = false;
    bool m_keptStation = false;
    bool m_droppedStation = false;
};

} // namespace quillet
