// SPDX-License-Identifier: MIT
// Memory in the system's large pages, where it has them: to touch half a million small pages for
// the first time takes longer than to fill them.
#pragma once

#include <cstddef>
#include <new>
#include <vector>

namespace torvik {

// For a program that ends when its work is done, before it begins: whatever it takes from now on
// comes in large pages, and what is given back is used again instead of going to the system.
void takeHeapInLargePages();

// For long arrays: bytes that begin at a page's border. Raises std::bad_alloc.
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
