// SPDX-License-Identifier: MIT
// A library to be loaded before all others (LD_PRELOAD): lets the k-th call of one kind fail that
// touches a folder, once or from then on.
#pragma once

#include <cstdint>

enum class Call : std::uint8_t { open, write, sync, rename, link, close, remove };

struct Fault {
    const char* folder; // without a slash at its end
    Call call;
    int k;          // 1 for the first
    bool forEver;   // and all after it
    bool plainDisk; // as on a diskette: no file without a name, no second names
};

extern "C" {
// The fault must outlive the calls.
void torvikArmFault(const Fault* fault);
// How many calls have been made to fail.
int torvikFaultsMade();
}
