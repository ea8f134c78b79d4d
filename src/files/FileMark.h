#pragma once

#include <QString>

#include <array>

namespace quillet {

/// What the system tells of a file, and of its folder's device, without reading it: as long as that
/// stays the same, so does the content, as far as anybody can tell so cheaply. Follows links.
class FileMark
{
public:
    /// Of what is there now; all that is nowhere has the same.
    [[nodiscard]] static FileMark at(const QString &path);
    /// The same without the folder's device, which takes longer to find than all the rest.
    [[nodiscard]] static FileMark ofFileAt(const QString &path);
    [[nodiscard]] bool operator==(const FileMark &) const = default;

private:
    std::array<qint64, 8> m_facts{};
};

} // namespace quillet
