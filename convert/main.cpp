// SPDX-License-Identifier: MIT
#include "base/large_pages.h"
#include "base/library_places.h"
#include "base/stop_signals.h"
#include "convert/converter.h"

#include <iostream>

int main(int argc, char** argv) {
    torvik::loadOnlyOwnLibraries();
    torvik::takeHeapInLargePages();
    torvik::tidyUpWhenStopped();
    return torvik::runConverter({argv, argv + argc}, std::cout, std::cerr);
}
