#pragma once

#include <QString>
#include <QStringList>

namespace quillet {

/// Which fields tell stations apart.
struct EntryKeys
{
    QStringList
        edited;     ///< fields that editing changes; entries that differ in these only are alike
    QString number; ///< its text tells which station a mutilated entry is of; empty: nothing does
    /// Fields that are neither of these, in which hardly any two stations agree.
    QStringList identity;
};

} // namespace quillet
