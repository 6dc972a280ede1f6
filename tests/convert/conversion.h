// SPDX-License-Identifier: MIT
// Runs the converter in an empty folder that is also the user's home: no answers and no tools but
// those that the test puts there.
#pragma once

#include "base/files.h"
#include "convert/converter.h"
#include "tests/base/temporary_folder.h"

#include <map>
#include <sstream>

namespace torvik {

using Arguments = std::vector<std::string>;
using Files = std::map<std::string, std::string>; // bytes by name

inline Files filesOf(const std::filesystem::path& folder) {
    Files files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().extension() != ".log")
            files[entry.path().lexically_relative(folder).generic_string()] =
                readWholeFile(entry.path(), 1 << 24);
    return files;
}

class Conversion {
public:
    Conversion() {
        setenv("TORVIK_HOME", (m_folder.path() / "home").c_str(), 1);
        setenv("XDG_CONFIG_HOME", (m_folder.path() / "config").c_str(), 1);
        for (const auto& folder : {home(), config(), work()})
            std::filesystem::create_directories(folder);
        std::filesystem::current_path(work());
    }
    ~Conversion() { std::filesystem::current_path("/"); }

    std::filesystem::path home() const { return m_folder.path() / "home"; }
    std::filesystem::path config() const { return m_folder.path() / "config"; }
    std::filesystem::path work() const { return m_folder.path() / "work"; }

    // The exit code; what was said goes to out and err. Names are seen from work().
    int run(Arguments arguments) {
        std::ostringstream said;
        std::ostringstream failed;
        arguments.insert(arguments.begin(), "torvik-convert");
        const int code = runConverter(std::move(arguments), said, failed);
        out = said.str();
        err = failed.str();
        return code;
    }

    std::string out;
    std::string err;

private:
    TemporaryFolder m_folder;
};

} // namespace torvik
