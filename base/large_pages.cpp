// SPDX-License-Identifier: MIT
#include "base/large_pages.h"

#include <cstdint>
#include <memory>

#ifdef __linux__
#include <sys/mman.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
#include <unistd.h>
#endif

namespace torvik {
namespace {

constexpr std::size_t pageBytes = std::size_t{1} << 21;

// Less is not worth a page of its own.
bool isLong(std::size_t bytes) {
    return bytes >= pageBytes;
}

// What is left of the last large page that the address lies in.
[[maybe_unused]] std::size_t bytesToNextPage(const void* address) {
    return pageBytes - reinterpret_cast<std::uintptr_t>(address) % pageBytes;
}

} // namespace

void takeHeapInLargePages() {
#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)
    // Addresses alone: nothing is taken before it is written to.
    constexpr int heapBytes = 1 << 26;
    mallopt(M_MMAP_THRESHOLD, heapBytes / 2); // the most that it may be
    mallopt(M_TOP_PAD, heapBytes);
    mallopt(M_TRIM_THRESHOLD, 4 * heapBytes);
    // The heap grows when it is asked for more than it begins with. It then writes to its new part,
    // and a large page must be advised before that: so what it is asked for ends at a border.
    constexpr std::size_t askedFor = 256 * 1024;
    constexpr std::size_t beforeBorder = askedFor + 2 * 4096;
    const std::size_t unused = (bytesToNextPage(sbrk(0)) + pageBytes - beforeBorder) % pageBytes;
    sbrk(static_cast<std::intptr_t>(unused)); // a refusal changes nothing
    static const auto neverUsed = std::make_unique_for_overwrite<char[]>(askedFor);
    madvise(neverUsed.get() + bytesToNextPage(neverUsed.get()), heapBytes, MADV_HUGEPAGE);
#endif
}

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
