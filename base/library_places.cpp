// SPDX-License-Identifier: MIT
#include "base/library_places.h"

#ifdef _WIN32
#include <windows.h>

#include <system_error>
#endif

namespace torvik {

void loadOnlyOwnLibraries() {
#ifdef _WIN32
    if (SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_DEFAULT_DIRS) == 0)
        throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
#endif
}

} // namespace torvik
