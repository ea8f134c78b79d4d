#pragma once

#include <QString>

namespace quillet {

/// Why an operation failed, in the shape a document platform reports it. An operation that can fail
/// without a reason of its own returns false and leaves the error empty; the framework then words a
/// general one.
struct Error
{
    QString domain;
    int code = 0;
    QString localizedDescription;
    QString filePath;
    QString detail = {}; ///< more than the description, shown below it; may be empty

    /// The description and, on lines of their own, the details.
    [[nodiscard]] QString text() const
    {
        return detail.isEmpty() ? localizedDescription
                                : localizedDescription + QLatin1Char('\n') + detail;
    }
    [[nodiscard]] bool isEmpty() const { return domain.isEmpty() && code == 0; }
};

} // namespace quillet
