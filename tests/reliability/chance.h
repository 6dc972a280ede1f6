// SPDX-License-Identifier: MIT
// Choices by chance: the same seed gives the same ones, on every machine.
#pragma once

#include <cstddef>
#include <random>

namespace torvik {

class Chance {
public:
    explicit Chance(unsigned seed) : m_random(seed) {}

    // A number from 0 to before the limit.
    std::size_t below(std::size_t limit) { return m_random() % limit; }
    int between(int low, int high) {
        return low + static_cast<int>(below(static_cast<std::size_t>(high - low) + 1));
    }
    bool percent(int share) { return between(1, 100) <= share; }
    template <typename List>
    auto& oneOf(List& list) {
        return list[below(std::size(list))];
    }

private:
    std::mt19937 m_random;
};

} // namespace torvik
