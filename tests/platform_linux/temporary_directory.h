#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// A new empty directory that goes, with all in it, when this object does.
class TemporaryDirectory final {
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }

    /// Writes a file below the directory and makes the folders on the way.
    void write(const std::string& name, std::string_view content) const;
    [[nodiscard]] std::string read(const std::string& name) const;
    [[nodiscard]] bool exists(const std::string& name) const;

private:
    std::string path_;
};

}  // namespace tidewatch
