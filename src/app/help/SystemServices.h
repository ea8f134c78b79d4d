#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace quillet {

/// What the program asks of the desktop it runs on, behind an interface that tests replace.
class SystemServices
{
public:
    virtual ~SystemServices() = default;

    /// Opens the address with whatever program the desktop has for it.
    virtual bool openUrl(const QUrl &url) = 0;
    /// Opens the address with that program.
    virtual void openUrlWith(const QUrl &url, const QString &application) = 0;
    /// Where the Chrome browser is installed; none when it is not.
    [[nodiscard]] virtual std::optional<QString> findChrome() const = 0;
};

} // namespace quillet
