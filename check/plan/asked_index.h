// SPDX-License-Identifier: MIT
// Finds the items of a job that a cut or a hole of a program can be. Built with the first question:
// a program that does what is asked needs none.
#pragma once

#include "check/plan/asked.h"

#include <cstdint>
#include <optional>

namespace torvik::check {

// Whether the item is what the move, a cut or the first way down into a hole, does.
bool isSameElement(const AskedItem& item, const Move& first);
// The same, and it is cut at the height that is asked for.
bool fits(const AskedItem& item, const Move& first);

class AskedIndex {
public:
    explicit AskedIndex(const Asked& asked) : m_asked(asked) {}

    // The first item from `from` on that the move fits.
    std::optional<std::size_t> next(const Move& first, std::size_t from);
    // The last item before `before` that the move fits.
    std::optional<std::size_t> previous(const Move& first, std::size_t before);

private:
    struct Entry {
        std::uint64_t key;
        std::uint32_t group;
        std::uint32_t element;
    };

    void build();
    template <typename Visit>
    void visitFitting(const Move& first, Visit visit);

    const Asked& m_asked;
    std::vector<Entry> m_entries; // by key, then in the order of the job
};

} // namespace torvik::check
