#pragma once

#include <dirent.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// Content of a small file of /sys or a short one of /proc, cut off at 4 KB; nullopt if it cannot be read.
/// `path` is relative to the open directory `directory`, or absolute.
[[nodiscard]] std::optional<std::string> readKernelFile(int directory, const char* path);
[[nodiscard]] std::optional<std::string> readKernelFile(const std::string& path);

/// A file of /proc that is read again and again: kept open, because opening costs more than reading.
class KernelFile final {
public:
    explicit KernelFile(std::string path);

    /// The whole content of the moment; valid until the next call. Nullopt if it cannot be read.
    [[nodiscard]] std::optional<std::string_view> read();

    /// Whether the content may differ from the last one: false only for a file with which the kernel
    /// announces changes, such as the mount table. Much cheaper than reading.
    [[nodiscard]] bool mayHaveChanged() const;

private:
    const std::string path_;
    FileDescriptor file_{-1};
    std::vector<char> buffer_;
};

struct CloseDirectory {
    void operator()(DIR* directory) const { ::closedir(directory); }
};
using OpenDirectory = std::unique_ptr<DIR, CloseDirectory>;

/// The names in a directory that begin with `prefix`, sorted; empty if it cannot be read.
[[nodiscard]] std::vector<std::string> namesIn(const std::string& directory, std::string_view prefix = "");

}  // namespace tidewatch::platform
