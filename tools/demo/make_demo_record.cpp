#include <cstdio>
#include <ctime>
#include <exception>

#include "tools/demo/demo_claude.h"
#include "tools/demo/demo_files.h"
#include "tools/demo/demo_home.h"
#include "tools/demo/demo_record.h"

namespace {

/// In the zone of this process.
tidewatch::demo::WallMoment wallMoment() {
    using namespace std::chrono;
    const auto now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {.day = sys_days(year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday),
            .sinceMidnight = hours(local.tm_hour) + minutes(local.tm_min)};
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs(
            "usage: make_demo_record HOME ICONS\n"
            "Fills the directory HOME with a made-up year of work, Claude logs and large files; desktop "
            "entries look for icons in ICONS.\n",
            stderr);
        return 2;
    }
    try {
        tidewatch::demo::writeDemoHome(tidewatch::demo::makeDemoRecord(wallMoment()), argv[1], argv[2]);
        const std::chrono::sys_seconds now(std::chrono::seconds(std::time(nullptr)));
        tidewatch::demo::writeDemoClaude(now, argv[1]);
        tidewatch::demo::writeDemoFiles(now, argv[1]);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make_demo_record: %s\n", failure.what());
        return 1;
    }
}
