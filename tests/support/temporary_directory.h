#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include <stdlib.h>

namespace tidewatch::test {

/// A new directory on the real disk, removed recursively on destruction.
class TemporaryDirectory final {
public:
    TemporaryDirectory() {
        auto pattern = (std::filesystem::temp_directory_path() / "tidewatch-test-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) throw std::runtime_error("no temporary directory: " + pattern);
        path_ = std::filesystem::canonical(pattern).string();
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::string& path() const { return path_; }

    /// Writes a file below the directory, creating parent folders.
    void write(const std::string& name, std::string_view content) const {
        const auto file = std::filesystem::path(path_) / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << content;
    }

    /// The content of a file below the directory; empty if there is none.
    [[nodiscard]] std::string read(const std::string& name) const {
        std::ifstream file(std::filesystem::path(path_) / name);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    [[nodiscard]] bool exists(const std::string& name) const {
        return std::filesystem::exists(std::filesystem::path(path_) / name);
    }

private:
    std::string path_;
};

}  // namespace tidewatch::test
