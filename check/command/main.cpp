// SPDX-License-Identifier: MIT
#include "base/large_pages.h"
#include "base/library_places.h"
#include "check/command/checker.h"

#include <iostream>

int main(int argc, char** argv) {
    torvik::loadOnlyOwnLibraries();
    torvik::takeHeapInLargePages();
    return torvik::check::runChecker({argv, argv + argc}, std::cout, std::cerr);
}
