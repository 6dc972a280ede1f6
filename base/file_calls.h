// SPDX-License-Identifier: MIT
// The system's own calls that the saving of a file takes. Each answers as the system does (-1 for a
// failure); errno then says why. What a signal interrupts is done again.
#pragma once

#include <cstddef>
#include <filesystem>

namespace torvik::calls {

// A new file of this name, open for writing; fails where anything has the name.
int createNew(const std::filesystem::path& file);
// A file in the folder that has no name yet, open for writing; -1 where the system knows no such.
int createNameless(const std::filesystem::path& folder);
// Gives such a file a name that nothing has.
int giveName(int descriptor, const std::filesystem::path& file);
long put(int descriptor, const char* bytes, std::size_t size);
// Waits until the bytes are on the disk, where the disk knows how to say so.
int sync(int descriptor);
// The same for the name that a file has in its folder.
int syncName(const std::filesystem::path& file);
int shut(int descriptor);
// Whether the file may be written. One that all are kept from writing is protected from the
// system's administrator, too.
bool mayBeReplaced(const std::filesystem::path& file);
// Owner and rights of another file, as far as the system allows it.
void takeRights(int descriptor, const std::filesystem::path& from);

} // namespace torvik::calls
