#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

#include <stdlib.h>

namespace tidewatch::test {

/// A new directory on the real disk, removed with all it holds at the end.
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

private:
    std::string path_;
};

}  // namespace tidewatch::test
