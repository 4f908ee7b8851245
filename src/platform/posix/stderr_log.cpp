#include "platform/posix/stderr_log.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace tidewatch::platform {
namespace {

void writeLine(std::string_view message) {
    std::string line(message);
    std::ranges::replace_if(
        line, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    line += '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace

void StderrLog::warning(std::string_view message) {
    writeLine(message);
}

void StderrLog::info(std::string_view message) {
    writeLine(message);
}

}  // namespace tidewatch::platform
