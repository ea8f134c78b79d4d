#pragma once

#include <QtGlobal>

namespace quillet {

/// Shows a waiting pointer while so many bytes are opened or written, for as long as this object
/// lives. Only for so many that the work may well take over 100 ms: the main thread is busy, so
/// this must be known beforehand, and for a shorter wait it would merely flicker.
class WaitCursor
{
public:
    explicit WaitCursor(qint64 bytes);
    ~WaitCursor();
    Q_DISABLE_COPY_MOVE(WaitCursor)

private:
    bool m_isShown;
};

} // namespace quillet
