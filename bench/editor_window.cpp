// The program itself, which is compiled with this, up to its window.

#include "bench/FirstPaint.h"

namespace {

void endAtFirstPaint()
{
    new quillet::bench::FirstPaint; // as long as the process
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(endAtFirstPaint)
