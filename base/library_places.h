// SPDX-License-Identifier: MIT
// Where a running program looks for libraries on Windows: beside itself and in Windows' own folder,
// never in the folder that it was started in, nor in those of PATH. A drawing on a memory stick may
// lie beside a library that means harm. Elsewhere nothing is looked for in such places anyway.
#pragma once

namespace torvik {

// To be called once, first of all, by the program's main. Raises std::system_error where Windows
// refuses.
void loadOnlyOwnLibraries();

} // namespace torvik
