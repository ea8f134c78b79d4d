#include "support/MemoryPages.h"

#include <QtGlobal>

#include <memory>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace quillet {

void takePages([[maybe_unused]] void *start, [[maybe_unused]] std::size_t size)
{
#ifdef MADV_POPULATE_WRITE
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    if (std::align(page, page, start, size))
        ::madvise(start, size - size % page, MADV_POPULATE_WRITE);
#endif
}

} // namespace quillet
