// SPDX-License-Identifier: MIT
// Memory for long arrays in the system's large pages, where it has them: to touch half a million
// small pages for the first time takes longer than to fill them.
#pragma once

#include <cstddef>
#include <new>
#include <vector>

namespace torvik {

// Bytes that begin at a page's border. Raises std::bad_alloc.
void* allocateLargePages(std::size_t bytes);
void freeLargePages(void* memory, std::size_t bytes);

// For the items of a vector.
template <typename T>
struct LargePages {
    using value_type = T;

    LargePages() = default;
    template <typename U>
    LargePages(const LargePages<U>& /*other*/) {}

    T* allocate(std::size_t count) {
        return static_cast<T*>(allocateLargePages(count * sizeof(T)));
    }
    void deallocate(T* items, std::size_t count) { freeLargePages(items, count * sizeof(T)); }

    bool operator==(const LargePages&) const = default;
};

template <typename T>
using LongVector = std::vector<T, LargePages<T>>;

} // namespace torvik
