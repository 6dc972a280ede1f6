// SPDX-License-Identifier: MIT
// Arrays whose subscript is checked on every access: a growing one that starts at 1, and fixed
// ones with bounds of their own. A wrong subscript raises SubscriptOutOfRange.
#pragma once

#include "base/errors.h"

#include <array>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace torvik {

template <typename T>
class OneBasedArray {
public:
    OneBasedArray() = default;
    OneBasedArray(std::initializer_list<T> items) : m_items(items) {}

    T& operator[](std::ptrdiff_t subscript) { return m_items[checked(subscript)]; }
    const T& operator[](std::ptrdiff_t subscript) const { return m_items[checked(subscript)]; }

    // Grows by one element, keeping the others.
    void append(T item) { m_items.push_back(std::move(item)); }
    // Puts the item at the subscript, 1 to count() + 1, and moves the later ones up by one.
    void insert(std::ptrdiff_t subscript, T item) {
        if (subscript != count() + 1)
            checked(subscript);
        m_items.insert(m_items.begin() + (subscript - 1), std::move(item));
    }
    void resize(std::ptrdiff_t count) { m_items.resize(static_cast<std::size_t>(count)); }
    void reserve(std::ptrdiff_t count) { m_items.reserve(static_cast<std::size_t>(count)); }
    void erase() { m_items.clear(); }

    std::ptrdiff_t count() const { return static_cast<std::ptrdiff_t>(m_items.size()); }
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }
    std::span<T> items() { return m_items; }
    std::span<const T> items() const { return m_items; }

    bool operator==(const OneBasedArray&) const = default;

private:
    std::size_t checked(std::ptrdiff_t subscript) const {
        if (subscript < 1 || subscript > count())
            throw SubscriptOutOfRange(subscript, 1, count());
        return static_cast<std::size_t>(subscript - 1);
    }

    std::vector<T> m_items;
};

// A fixed array with the bounds Low to High, both included.
template <typename T, std::ptrdiff_t Low, std::ptrdiff_t High>
class BoundedArray {
public:
    T& operator[](std::ptrdiff_t subscript) { return m_items[checked(subscript)]; }
    const T& operator[](std::ptrdiff_t subscript) const { return m_items[checked(subscript)]; }

    static constexpr std::ptrdiff_t low() { return Low; }
    static constexpr std::ptrdiff_t high() { return High; }
    void fill(const T& item) { m_items.fill(item); }
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

    bool operator==(const BoundedArray&) const = default;

private:
    static std::size_t checked(std::ptrdiff_t subscript) {
        if (subscript < Low || subscript > High)
            throw SubscriptOutOfRange(subscript, Low, High);
        return static_cast<std::size_t>(subscript - Low);
    }

    std::array<T, static_cast<std::size_t>(High - Low + 1)> m_items{};
};

} // namespace torvik
