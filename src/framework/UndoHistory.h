#pragma once

#include <QObject>
#include <QUndoStack>

#include <cstddef>
#include <memory>
#include <vector>

namespace quillet {

/// A step that can be undone. It was carried out before it is pushed, so the first redo does
/// nothing.
class UndoStep : public QUndoCommand
{
public:
    /// Of the memory that it holds.
    [[nodiscard]] virtual std::size_t byteCount() const = 0;
    /// Another step with the same content, shared, which is not merged into the one before it.
    [[nodiscard]] virtual std::unique_ptr<UndoStep> copy() const = 0;
};

/// The steps of a document that can be undone, in a QUndoStack, and whether the document is as it
/// was saved. Bounded in memory: the oldest steps go first, and when the saved state can no more be
/// reached, nothing else passes for it. Owned by its document.
class UndoHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t mostBytes = std::size_t{64} << 20;

    explicit UndoHistory(std::size_t limit = mostBytes, QObject *parent = nullptr);
    ~UndoHistory() override { m_stack.disconnect(this); }

    /// For views; steps are pushed, undone and made again through the history alone.
    [[nodiscard]] const QUndoStack &stack() const { return m_stack; }
    void push(std::unique_ptr<UndoStep> step);
    void undo() { goTo(m_stack.index() - 1); }
    void redo() { goTo(m_stack.index() + 1); }
    /// Undoes and makes again until that many steps are done.
    void goTo(int index);
    /// Whether goTo() has more than one step to go.
    [[nodiscard]] bool isJumping() const { return m_isJumping; }
    /// Forgets all steps; the state there is counts as the saved one.
    void clear();

    [[nodiscard]] bool isClean() const { return m_stack.isClean(); }
    /// The state there is is the saved one.
    void setClean() { m_stack.setClean(); }
    /// No state that can be reached is the saved one.
    void resetClean();
    /// Another number whenever anything was done, undone or forgotten.
    [[nodiscard]] quint64 changeCount() const { return m_changeCount; }
    [[nodiscard]] std::size_t byteCount() const { return m_bytes; }
    /// Whether the oldest steps are gone, so that undoing does not lead to the beginning.
    [[nodiscard]] bool hasForgotten() const { return m_hasForgotten; }

signals:
    /// Other steps can be undone or made again.
    void changed();
    /// A jump has come to its end.
    void jumped();
    void cleanChanged();

private:
    [[nodiscard]] std::size_t sizeOf(int index) const;
    void count();
    void forgetOldest();

    QUndoStack m_stack;
    std::size_t m_limit;
    std::vector<std::size_t> m_sizes; ///< of the steps, in bytes
    std::size_t m_bytes = 0;
    quint64 m_changeCount = 0;
    bool m_isJumping = false;
    bool m_hasForgotten = false;
};

} // namespace quillet
