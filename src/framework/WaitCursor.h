#pragma once

#include <QtGlobal>

namespace quillet {

/// Shows a waiting pointer while a document is opened or reviewed, for as long as this object
/// lives. Only for so many bytes that it takes over 100 ms: a shorter wait would merely flicker.
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
