#include "platform/linux/proc_processes.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "base/parse_real.h"
#include "base/trim.h"
#include "platform/linux/kernel_file.h"
#include "platform/linux/text_fields.h"

namespace tidewatch::platform {

namespace {

constexpr std::size_t maxShortName = 15;

std::string_view lastComponent(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

// Into `buffer`, without an allocation: there may be thousands of processes.
std::string_view readInto(std::span<char> buffer, int directory, const char* path) {
    const FileDescriptor file(::openat(directory, path, O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!file.isOpen()) return {};
    const auto length = ::read(file.get(), buffer.data(), buffer.size());
    return {buffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
}

std::string linkTarget(int directory, const std::string& path) {
    std::array<char, 4096> target{};
    const auto length = ::readlinkat(directory, path.c_str(), target.data(), target.size());
    return {target.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
}

// Of a process whose short name is this; `directory` is that of all processes.
std::string nameOf(int directory, int process, std::string_view shortName) {
    if (shortName.size() < maxShortName) return std::string(trimmed(shortName));
    const auto own = std::to_string(process);
    const auto commandLine = readKernelFile(directory, (own + "/cmdline").c_str());
    const auto name =
        wholeProcessName(shortName, commandLine.value_or(""), linkTarget(directory, own + "/exe"));
    return std::string(trimmed(name));
}

}  // namespace

std::optional<ProcessStat> parseProcessStat(std::string_view text) {
    const auto begin = text.find('(');
    // The name may hold parentheses; what follows it does not.
    const auto end = text.rfind(')');
    if (begin == std::string_view::npos || end == std::string_view::npos || end < begin) return std::nullopt;
    ProcessStat stat;
    stat.name = text.substr(begin + 1, end - begin - 1);
    auto rest = text.substr(end + 1);
    // Columns as they are numbered in proc(5).
    constexpr int stateColumn = 3, userColumn = 14, systemColumn = 15, startColumn = 22, residentColumn = 24;
    for (int column = stateColumn; column <= residentColumn; ++column) {
        const auto field = takeField(rest);
        if (column != userColumn && column != systemColumn && column != startColumn &&
            column != residentColumn)
            continue;
        const auto number = wholeNumber<std::uint64_t>(field);
        if (!number) return std::nullopt;
        if (column == userColumn || column == systemColumn) stat.cpuTicks += *number;
        if (column == startColumn) stat.startTicks = *number;
        if (column == residentColumn) stat.residentPages = *number;
    }
    // Another column follows, so the last number is whole.
    if (takeField(rest).empty()) return std::nullopt;
    return stat;
}

std::string wholeProcessName(std::string_view shortName, std::string_view commandLine,
                             std::string_view executable) {
    if (shortName.size() < maxShortName) return std::string(shortName);
    // Some programs replace their arguments by one text with blanks.
    const auto command = commandLine.substr(0, commandLine.find('\0'));
    for (const auto whole : {lastComponent(command.substr(0, command.find(' '))), lastComponent(command),
                             lastComponent(executable)}) {
        if (whole.starts_with(shortName)) return std::string(whole);
    }
    return std::string(shortName);
}

std::string processName(int process) {
    const FileDescriptor directory(::open("/proc", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    std::array<char, 1024> buffer{};
    const auto stat =
        parseProcessStat(readInto(buffer, directory.get(), (std::to_string(process) + "/stat").c_str()));
    return stat ? nameOf(directory.get(), process, stat->name) : "";
}

std::optional<double> parseUptime(std::string_view text) {
    return parseReal(takeField(text));
}

std::optional<std::chrono::nanoseconds> processorTimeOf(int process) {
    clockid_t clock{};
    timespec time{};
    if (::clock_getcpuclockid(process, &clock) != 0 || ::clock_gettime(clock, &time) != 0)
        return std::nullopt;
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

ProcProcesses::ProcProcesses(const std::string& procDirectory, ProcessorTimeOf timeOf)
    : directoryPath_(procDirectory),
      timeOf_(std::move(timeOf)),
      directory_(::open(procDirectory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      ticksPerSecond_(static_cast<double>(::sysconf(_SC_CLK_TCK))),
      pageSize_(static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE))) {}

std::vector<ProcessLoad> ProcProcesses::busiest(std::size_t limit) {
    const auto uptimeText = readKernelFile(directoryPath_ + "/uptime");
    const auto uptime = uptimeText ? parseUptime(*uptimeText) : std::nullopt;
    if (!uptime) return {};
    Moment now{.processes = {}, .uptime = *uptime};
    now.processes.reserve(last_.processes.size() + 16);
    for (const auto id : ids()) {
        if (const auto process = measure(id, *uptime)) now.processes.push_back(*process);
    }
    last_ = now;

    // Of equally busy ones the one with the lower number first, as they are.
    std::ranges::stable_sort(now.processes, std::ranges::greater(), &Process::cpuPercent);
    std::vector<ProcessLoad> loads;
    for (const auto& process : now.processes) {
        if (loads.size() == limit) break;
        if (auto load = loadOf(process)) {
            loads.push_back(std::move(*load));
        } else {
            // It has ended, has no name, or is another one than the last time; then it is new the next time.
            std::erase_if(last_.processes, [&](const Process& each) { return each.id == process.id; });
        }
    }
    return loads;
}

std::vector<int> ProcProcesses::ids() const {
    std::vector<int> ids;
    ids.reserve(last_.processes.size() + 16);
    const OpenDirectory entries(::opendir(directoryPath_.c_str()));
    while (const auto* entry = entries ? ::readdir(entries.get()) : nullptr) {
        if (const auto id = wholeNumber<int>(entry->d_name)) ids.push_back(*id);
    }
    std::ranges::sort(ids);
    return ids;
}

const ProcProcesses::Process* ProcProcesses::lastOf(int id) const {
    const auto last = std::ranges::lower_bound(last_.processes, id, {}, &Process::id);
    return last != last_.processes.end() && last->id == id ? &*last : nullptr;
}

std::optional<ProcProcesses::Process> ProcProcesses::measure(int id, double uptime) const {
    const auto time = timeOf_ ? timeOf_(id) : std::nullopt;
    const auto* last = lastOf(id);
    const auto seconds = time ? std::chrono::duration<double>(*time).count() : 0;
    // Of one that is new, or has taken the number of another one, its start has to be read.
    if (!time || !last || seconds < last->cpuSeconds) return measureByFile(id, uptime);
    Process process{.id = id, .startTicks = last->startTicks, .cpuSeconds = seconds};
    rate(process, last, uptime);
    return process;
}

std::optional<ProcProcesses::Process> ProcProcesses::measureByFile(int id, double uptime) const {
    std::array<char, 1024> buffer{};
    const auto stat =
        parseProcessStat(readInto(buffer, directory_.get(), fmt::format("{}/stat", id).c_str()));
    if (!stat) return std::nullopt;
    const auto time = timeOf_ ? timeOf_(id) : std::nullopt;
    Process process{.id = id, .startTicks = stat->startTicks};
    process.cpuSeconds = time ? std::chrono::duration<double>(*time).count()
                              : static_cast<double>(stat->cpuTicks) / ticksPerSecond_;
    const auto* last = lastOf(id);
    rate(process, last && last->startTicks == process.startTicks ? last : nullptr, uptime);
    return process;
}

void ProcProcesses::rate(Process& process, const Process* last, double uptime) const {
    const auto since = last ? last_.uptime : static_cast<double>(process.startTicks) / ticksPerSecond_;
    const auto used = std::max(process.cpuSeconds - (last ? last->cpuSeconds : 0), 0.0);
    process.cpuPercent = uptime > since ? 100 * used / (uptime - since) : 0;
}

std::optional<ProcessLoad> ProcProcesses::loadOf(const Process& process) const {
    std::array<char, 1024> buffer{};
    const auto directory = std::to_string(process.id);
    const auto stat = parseProcessStat(readInto(buffer, directory_.get(), (directory + "/stat").c_str()));
    if (!stat || stat->startTicks != process.startTicks) return std::nullopt;
    auto name = nameOf(directory_.get(), process.id, stat->name);
    if (name.empty()) return std::nullopt;
    return ProcessLoad{.name = std::move(name),
                       .cpuPercent = process.cpuPercent,
                       .resident = stat->residentPages * pageSize_};
}

}  // namespace tidewatch::platform
