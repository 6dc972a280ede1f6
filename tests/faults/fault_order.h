// SPDX-License-Identifier: MIT
// Faults of the disk for a program that knows nothing of them, ordered by the environment:
//   TORVIK_FAULT="CALL K once|ever tmp|plain ERROR FOLDER"
// with the names of Call and of an error (EIO, ENOSPC, EACCES, EROFS, EDQUOT, EBUSY, EINTR; half
// for a write of half the bytes, kill for the program's end), and K 0 for no fault.
// TORVIK_FAULT_LOG names a file that gets a line for each call in the folder, "CALL PATH", with a !
// before those that were made to fail.
#pragma once

#include "tests/faults/fault_shim.h"

// Takes such an order; false where it is none.
extern "C" bool torvikTakeOrder(const char* order);

// Writes the line; errno stays.
void noteCall(Call call, const char* where, bool failing);
