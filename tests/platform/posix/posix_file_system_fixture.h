#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/posix_file_system.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::platform {

/// A file system whose home is a temporary directory.
struct PosixFileSystemTest : testing::Test {
    test::TemporaryDirectory directory;
    PosixFileSystem files{directory.path()};
    const std::string file = directory.path() + "/today.json";

    static void write(const std::string& path, std::string_view content) {
        std::ofstream(path, std::ios::binary) << content;
    }

    static mode_t modeOf(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    /// The names of the entries of the test's directory.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(directory.path())) {
            result.push_back(entry.path().filename());
        }
        std::ranges::sort(result);
        return result;
    }
};

/// During its lifetime, new files lack these permissions.
class Umask final {
public:
    explicit Umask(mode_t mask) : before_(::umask(mask)) {}
    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;
    ~Umask() { ::umask(before_); }

private:
    mode_t before_;
};

/// During its lifetime, this process cannot write files larger than `bytes`.
class FileSizeLimit final {
public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit before_{};
    void (*handler_)(int);
};

}  // namespace tidewatch::platform
