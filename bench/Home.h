#pragma once

#include <QProcessEnvironment>
#include <QTemporaryDir>

namespace quillet::bench {

/// Settings, logs and what else the program keeps of a person, in folders that are empty at first
/// and go with this.
class Home
{
public:
    Home();

    /// That of this process, but leading there.
    [[nodiscard]] QProcessEnvironment environment() const;
    /// Has this process go there, which must not have looked for anything yet.
    void enter() const;

private:
    QTemporaryDir m_folder;
};

} // namespace quillet::bench
