// SPDX-License-Identifier: MIT
// torvik-bench-polylines BYTES FILE: a drawing of polylines, for timing whole runs.
#include "bench/polylines.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: torvik-bench-polylines BYTES FILE\n";
        return 1;
    }
    std::ofstream file(argv[2], std::ios::binary);
    file << torvik::polylineDrawing(std::strtoul(argv[1], nullptr, 10));
    return file.flush() ? 0 : 2;
}
