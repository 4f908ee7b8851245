#include "shell/windows/file_name.h"

#include <string>

#include "base/characters.h"

namespace tidewatch {

namespace {

constexpr std::size_t maxNameBytes = 255;
constexpr std::size_t maxExtensionLength = 8;

/// The extension with its dot; empty if what follows the last dot is too long for one.
std::string_view extensionOf(std::string_view name) {
    const auto dot = name.rfind('.');
    if (dot == std::string_view::npos || name.size() - dot > maxExtensionLength) return {};
    return name.substr(dot);
}

}  // namespace

std::string writableFileName(std::string_view name) {
    std::string writable(name);
    std::erase(writable, '\0');
    if (writable.size() <= maxNameBytes) return writable;
    const std::string extension(extensionOf(writable));
    const auto stem = std::string_view(writable).substr(0, writable.size() - extension.size());
    return std::string(charactersWithin(maxNameBytes - extension.size(), stem)) + extension;
}

}  // namespace tidewatch
