// SPDX-License-Identifier: MIT
#include "base/stop_signals.h"

#ifndef _WIN32
#include <array>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <unistd.h>
#endif

namespace torvik {

#ifdef _WIN32

void tidyUpWhenStopped() {}

RemovedWhenStopped::RemovedWhenStopped(const std::filesystem::path&) : m_place(-1) {}
RemovedWhenStopped::~RemovedWhenStopped() = default;

StopWaits::StopWaits() = default;
StopWaits::~StopWaits() = default;

#else

namespace {

constexpr int none = -1;
enum class Use : std::uint8_t { free, changing, named };

// A signal may come between any two steps: no memory is asked for, and a name is looked at only
// while it is whole.
struct Place {
    std::atomic<Use> use = Use::free;
    std::array<char, 4096> name{};
};
// A signal's handler is handed nothing.
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables)
std::array<Place, 16> places;
std::atomic<int> waiting = 0;
std::atomic<int> lateSignal = 0;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<Use>::is_always_lock_free);

extern "C" void onStop(int signal) {
    if (waiting > 0 && lateSignal == 0) {
        lateSignal = signal;
        return;
    }
    for (Place& place : places)
        if (place.use == Use::named)
            unlink(place.name.data());
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

void tidyUpWhenStopped() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler != SIG_DFL)
            continue;
        action.sa_handler = onStop;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

RemovedWhenStopped::RemovedWhenStopped(const std::filesystem::path& file) : m_place(none) {
    const std::string& name = file.native();
    for (std::size_t i = 0; i < places.size() && m_place == none; ++i) {
        Use expected = Use::free;
        if (name.size() < places[i].name.size() &&
            places[i].use.compare_exchange_strong(expected, Use::changing)) {
            std::memcpy(places[i].name.data(), name.c_str(), name.size() + 1);
            places[i].use = Use::named;
            m_place = static_cast<int>(i);
        }
    }
}

RemovedWhenStopped::~RemovedWhenStopped() {
    if (m_place != none)
        places[static_cast<std::size_t>(m_place)].use = Use::free;
}

StopWaits::StopWaits() {
    ++waiting;
}

StopWaits::~StopWaits() {
    if (--waiting == 0)
        if (const int signal = lateSignal.exchange(0); signal != 0)
            std::raise(signal);
}

#endif

} // namespace torvik
