// SPDX-License-Identifier: MIT
#include "check/command/checker.h"

#include <iostream>

int main(int argc, char** argv) {
    return torvik::check::runChecker({argv, argv + argc}, std::cout, std::cerr);
}
