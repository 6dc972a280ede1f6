// SPDX-License-Identifier: MIT
#include "base/library_places.h"
#include "check/command/checker.h"

#include <iostream>

int main(int argc, char** argv) {
    torvik::loadOnlyOwnLibraries();
    return torvik::check::runChecker({argv, argv + argc}, std::cout, std::cerr);
}
