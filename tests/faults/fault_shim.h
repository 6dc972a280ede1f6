// SPDX-License-Identifier: MIT
// A library to be loaded before all others (LD_PRELOAD): lets the k-th call of one kind fail that
// touches a folder, once or from then on. A test arms it by its function, and for a program that
// knows nothing of it by the environment (fault_order.h).
#pragma once

#include <cstdint>

// Of `any`, each call counts.
enum class Call : std::uint8_t { open, write, sync, rename, link, close, stat, remove, any };

// What stands for an errno below.
inline constexpr int usualFailure = 0;
inline constexpr int halfWritten = -1; // a write takes half of its bytes
inline constexpr int killed = -2;      // the program is killed before the call

struct Fault {
    const char* folder; // without a slash at its end
    Call call;
    int k;                    // 1 for the first
    bool forEver;             // and all after it
    bool plainDisk;           // as on a diskette: no file without a name, no second names
    int error = usualFailure; // an errno; what interrupts for ever does so at every second call
};

extern "C" {
// The fault must outlive the calls.
void torvikArmFault(const Fault* fault);
// How many calls have been made to fail.
int torvikFaultsMade();
}
