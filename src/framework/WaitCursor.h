#pragma once

#include <QtGlobal>

namespace quillet {

/// Shows a waiting pointer while a document is opened or reviewed, for as long as this object
/// lives. Only for so many bytes that the work may well take over 100 ms: the main thread is busy,
/// so this must be known beforehand, and for a shorter wait it would merely flicker.
class WaitCursor
{
public:
    enum class Work { Opening, Reviewing };
    WaitCursor(Work work, qint64 bytes);
    ~WaitCursor();
    Q_DISABLE_COPY_MOVE(WaitCursor)

private:
    bool m_isShown;
};

} // namespace quillet
