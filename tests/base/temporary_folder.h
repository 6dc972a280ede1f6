// SPDX-License-Identifier: MIT
// An empty folder for one test, removed with all it holds at the end.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace torvik {

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device chance;
        for (int tries = 0; tries < 100; ++tries) {
            m_path =
                std::filesystem::temp_directory_path() / ("torvik-" + std::to_string(chance()));
            if (std::filesystem::create_directory(m_path))
                return;
        }
        throw std::runtime_error("no temporary folder could be made");
    }
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    // Writes a file of the folder and returns its path.
    std::filesystem::path file(const std::string& name, std::string_view bytes) const {
        std::ofstream(m_path / name, std::ios::binary) << bytes;
        return m_path / name;
    }

private:
    std::filesystem::path m_path;
};

} // namespace torvik
