// SPDX-License-Identifier: MIT
#include "base/large_pages.h"

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace torvik {
namespace {

constexpr std::size_t pageBytes = std::size_t{1} << 21;

// Less is not worth a page of its own.
bool isLong(std::size_t bytes) {
    return bytes >= pageBytes;
}

} // namespace

void* allocateLargePages(std::size_t bytes) {
    if (!isLong(bytes))
        return ::operator new(bytes);
    void* const memory = ::operator new (bytes, std::align_val_t{pageBytes});
#ifdef MADV_HUGEPAGE
    // The last page stays small where it would be used in part. A refusal changes nothing.
    madvise(memory, bytes - bytes % pageBytes, MADV_HUGEPAGE);
#endif
    return memory;
}

void freeLargePages(void* memory, std::size_t bytes) {
    if (isLong(bytes))
        ::operator delete (memory, std::align_val_t{pageBytes});
    else
        ::operator delete(memory);
}

} // namespace torvik
