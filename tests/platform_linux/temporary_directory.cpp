#include "platform_linux/temporary_directory.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tidewatch {

TemporaryDirectory::TemporaryDirectory() {
    path_ = (std::filesystem::temp_directory_path() / "tidewatch-test-XXXXXX").string();
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary directory can be made");
}

TemporaryDirectory::~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void TemporaryDirectory::write(const std::string& name, std::string_view content) const {
    const auto file = std::filesystem::path(path_) / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << content;
}

std::string TemporaryDirectory::read(const std::string& name) const {
    std::ifstream file(std::filesystem::path(path_) / name);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool TemporaryDirectory::exists(const std::string& name) const {
    return std::filesystem::exists(std::filesystem::path(path_) / name);
}

}  // namespace tidewatch
