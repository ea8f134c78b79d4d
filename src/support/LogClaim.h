#pragma once

#include <QString>

#include <vector>

namespace quillet {

/// Sees to it that two programs that run at the same time never rotate or fill one log: a program
/// claims the folder of its log for as long as this lives, and one that finds it claimed takes the
/// next ("quillet-2", and so on), where its log is rotated among runs of its own. Nothing is put
/// into the folder, and the system gives it back when a program crashes. Where a folder cannot be
/// claimed at all, its log is used without.
class LogClaim
{
public:
    LogClaim();
    ~LogClaim();
    Q_DISABLE_COPY_MOVE(LogClaim)

    /// What to open the log with; empty stands for this application, as in OpenFileLog().
    [[nodiscard]] const QString &applicationName() const { return m_applicationName; }

private:
    [[nodiscard]] bool isClaimedByAnother(const QString &folder);

    QString m_applicationName;
    int m_handle = -1; ///< of the folder, open while it is claimed
};

} // namespace quillet
