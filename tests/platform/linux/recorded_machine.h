#pragma once

#include <string>

#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {

/// The trees of /proc and /sys of a machine, unpacked from a text of `machines`: a line "== path" begins a
/// file.
class RecordedMachine final {
public:
    explicit RecordedMachine(const std::string& name);

    [[nodiscard]] std::string proc() const { return directory_.path() + "/proc"; }
    [[nodiscard]] std::string sys() const { return directory_.path() + "/sys"; }

    /// Replaces a file, or adds one; `path` as in the text.
    void write(const std::string& path, std::string_view content) const { directory_.write(path, content); }

private:
    const test::TemporaryDirectory directory_;
};

}  // namespace tidewatch::platform
