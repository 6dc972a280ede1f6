// SPDX-License-Identifier: MIT
#include "convert/converter.h"

#include <iostream>

int main(int argc, char** argv) {
    return torvik::runConverter({argv, argv + argc}, std::cout, std::cerr);
}
