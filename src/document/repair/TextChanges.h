#pragma once

#include <QByteArray>

#include <vector>

namespace quillet {

struct Mending;

/// Changes to a text, collected while it is read and made at the end, so that places stay what they
/// are meanwhile. Of changes that overlap the first one in the text is made.
class TextChanges
{
public:
    enum class Kind { Ampersand, Bracket, Control, Tag, Stray };

    /// Replaces so many bytes.
    void replace(qsizetype at, qsizetype length, const QByteArray &text, Kind kind)
    {
        m_changes.push_back({at, length, text, kind});
    }
    void insert(qsizetype at, const QByteArray &text, Kind kind) { replace(at, 0, text, kind); }
    void remove(qsizetype at, qsizetype length, Kind kind) { replace(at, length, {}, kind); }
    /// Makes a character text that stood for markup.
    void escape(qsizetype at, const QByteArray &reference, Kind kind = Kind::Bracket)
    {
        replace(at, 1, reference, kind);
    }

    /// Keeps nothing from a place on; insertions may still be made right before it.
    void cut(qsizetype at) { m_cut = at; }
    [[nodiscard]] bool isCut() const { return m_cut >= 0; }
    /// Negative when all is kept.
    [[nodiscard]] qsizetype cutPlace() const { return m_cut; }
    /// What is put behind all.
    void setEnd(const QByteArray &text) { m_end = text; }

    [[nodiscard]] QByteArray appliedTo(const QByteArray &text) const;
    /// Adds the changes to what was mended, without those that the cut took away.
    void countInto(Mending &mending) const;

private:
    struct Change
    {
        qsizetype at;
        qsizetype length; ///< of what is replaced
        QByteArray text;
        Kind kind;
    };

    [[nodiscard]] bool isKept(const Change &each) const
    {
        return m_cut < 0 || each.at < m_cut || (each.at == m_cut && each.length == 0);
    }

    std::vector<Change> m_changes;
    qsizetype m_cut = -1;
    QByteArray m_end;
};

} // namespace quillet
