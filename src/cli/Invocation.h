#pragma once

#include "cli/CommandTable.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillet {

/// A command with its operands and options, as somebody has called it.
class Invocation
{
public:
    /// Understands what stands behind the name of the command. None, with what is wrong, of what
    /// the command does not take.
    [[nodiscard]] static std::optional<Invocation>
    parse(const Command &command, const QStringList &arguments, QString &problem);

    [[nodiscard]] const Command &command() const { return *m_command; }
    [[nodiscard]] const QStringList &operands() const { return m_operands; }
    [[nodiscard]] bool isSet(Option option) const { return m_values.contains(option); }
    /// The last one that was given; empty without any.
    [[nodiscard]] QString value(Option option) const;
    [[nodiscard]] QStringList values(Option option) const { return m_values.value(option); }
    /// All that were given, which are apart by commas.
    [[nodiscard]] QStringList parts(Option option) const;

private:
    explicit Invocation(const Command &command) : m_command(&command) {}
    [[nodiscard]] QString wrongChoice() const;
    [[nodiscard]] QString wrongOperands() const;

    const Command *m_command;
    QStringList m_operands;
    QHash<Option, QStringList> m_values;
};

} // namespace quillet
