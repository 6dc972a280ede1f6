// SPDX-License-Identifier: MIT
// What a walk has done so far, kept in a file too, so that a crash can be followed; and what was
// wrong.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace torvik {

class Record {
public:
    Record(const std::filesystem::path& file, unsigned seed) : m_file(file) {
        note("walk of seed " + std::to_string(seed));
    }

    void note(const std::string& action) { m_file << action << std::endl; }
    void fault(const std::string& what) {
        ++m_faults;
        note("WRONG: " + what);
    }
    void require(bool holds, const std::string& what) {
        if (!holds)
            fault(what);
    }
    bool isGood() const { return m_faults == 0; }

private:
    std::ofstream m_file;
    int m_faults = 0;
};

} // namespace torvik
