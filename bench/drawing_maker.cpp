// SPDX-License-Identifier: MIT
// torvik-bench-drawing LINES FILE: writes a drawing of that many lines.
#include "bench/drawings.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

int main(int argc, char** argv) {
    const long lines = argc == 3 ? std::atol(argv[1]) : 0;
    if (lines < 1) {
        std::cerr << "usage: torvik-bench-drawing LINES FILE\n";
        return 1;
    }
    std::ofstream file(argv[2], std::ios::binary);
    if (!(file << torvik::lineDrawing(lines)).flush()) {
        std::cerr << "torvik-bench-drawing: " << argv[2] << " cannot be written\n";
        return 2;
    }
    return 0;
}
