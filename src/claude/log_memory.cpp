#include "claude/log_memory.h"

#include <algorithm>
#include <functional>
#include <thread>
#include <utility>

namespace tidewatch {
namespace {

using platform::FileKind;
using platform::FileTime;

constexpr std::string_view logSuffix = ".jsonl";

// Whether a row holds lines on both sides of a boundary that somebody asks about.
bool isSplit(const UsageRow& row, std::chrono::sys_seconds boundary, LocalMonths& months) {
    return (row.first < boundary && row.last() >= boundary) ||
           (row.span > 0 && months.monthOf(row.first) != months.monthOf(row.last()));
}

bool hasSplitRow(const LogFile& file, std::chrono::sys_seconds boundary, LocalMonths& months) {
    return std::ranges::any_of(file.rows,
                               [&](const UsageRow& row) { return isSplit(row, boundary, months); });
}

// Merges what has become old enough for it.
void mergeOlder(LogFile& file, UsageMerging& merging) {
    if (!file.hasDetail || file.detailFrom >= merging.detailFrom()) return;
    std::vector<UsageRow> rows;
    for (const auto& row : file.rows) merging.add(row, rows);
    rows.shrink_to_fit();
    file.rows = std::move(rows);
    file.detailFrom = merging.detailFrom();
    file.hasDetail =
        std::ranges::any_of(file.rows, [&](const UsageRow& row) { return merging.isDetail(row); });
}

}  // namespace

LogMemory::LogMemory(const platform::FileSystem& files, std::uint64_t helpFrom)
    : files_(files), helpFrom_(helpFrom) {}

bool LogMemory::find() {
    ++walk_;
    const auto root = files_.homeDirectory() + "/.claude/projects";
    const auto walked = files_.enumerate(root, platform::HiddenFiles::skipped, [this](const auto& found) {
        if (found.path.ends_with(logSuffix)) note(found);
        return platform::VisitAction::proceed;
    });
    if (!walked) {
        entries_.clear();
        return false;
    }
    std::erase_if(entries_, [this](const auto& entry) { return entry.second.walk != walk_; });
    return true;
}

void LogMemory::note(const platform::FoundFile& found) {
    auto info = found.info;
    if (info.kind == FileKind::link) {
        const auto target = files_.inspect(std::string(found.path));
        if (!target) return;
        info = target.value();
    }
    if (info.kind != FileKind::file) return;
    auto entry = entries_.find(found.path);
    if (entry == entries_.end()) entry = entries_.try_emplace(std::string(found.path)).first;
    entry->second.found = info;
    entry->second.walk = walk_;
}

void LogMemory::read(FileTime modifiedFrom, std::chrono::sys_seconds boundary, const LocalMonths& months,
                     const std::atomic<bool>& cancelled) {
    UsageMerging merging(boundary, months);
    const auto changed = changedEntries(modifiedFrom, boundary, merging);
    std::atomic<std::size_t> next = 0;
    const auto readAll = [&] {
        LogFileReader reader(files_, models_, cancelled, merging);
        for (auto i = next++; i < changed.size() && !cancelled; i = next++) {
            auto& [path, entry] = *changed[i];
            reader.update(path, entry.found, entry.file);
        }
    };
    if (changed.empty()) return;
    std::uint64_t bytes = 0;
    for (const auto* item : changed) {
        const auto& [found, walk, file] = item->second;
        bytes += found.size - std::min(found.size, file.offset);
    }
    std::thread helper;
    if (changed.size() > 1 && bytes >= helpFrom_) helper = std::thread(readAll);
    readAll();
    if (helper.joinable()) helper.join();
}

std::vector<LogMemory::Entries::value_type*> LogMemory::changedEntries(FileTime modifiedFrom,
                                                                       std::chrono::sys_seconds boundary,
                                                                       UsageMerging& merging) {
    std::vector<Entries::value_type*> changed;
    for (auto& item : entries_) {
        auto& entry = item.second;
        if (entry.found.modified < modifiedFrom) continue;
        if (hasSplitRow(entry.file, boundary, merging.months())) entry.file = LogFile();
        if (entry.file.read == entry.found) {
            mergeOlder(entry.file, merging);
        } else {
            changed.push_back(&item);
        }
    }
    // The largest first, so that both threads end at about the same time.
    std::ranges::sort(changed, std::greater(), [](const auto* item) { return item->second.found.size; });
    return changed;
}

}  // namespace tidewatch
