#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "claude/log_file.h"
#include "claude/model_names.h"
#include "claude/usage_rows.h"
#include "platform/api/file_system.h"

namespace tidewatch {

/// All log files, and what is remembered of each: a file is opened only if it has changed. What the rows say
/// is what reading everything anew would say. Not thread-safe, but may be used on any thread.
class LogMemory final {
public:
    /// A second thread helps from so many bytes to read on.
    static constexpr std::uint64_t worthHelping = 4 << 20;

    /// `files` must outlive it. `helpFrom`: see worthHelping.
    explicit LogMemory(const platform::FileSystem& files, std::uint64_t helpFrom = worthHelping);

    /// Finds the log files: those with the suffix ".jsonl" below ".claude/projects" in the home directory,
    /// hidden ones and those in hidden directories excepted. Links to files are followed. Forgets files that
    /// are gone. Returns false if that directory cannot be read.
    [[nodiscard]] bool find();

    /// Reads what has changed of the files that were modified at or after `modifiedFrom`, as found. Rows that
    /// cannot be told apart at `boundary`, or at a change of the local month, are read anew. Ends early if
    /// `cancelled` becomes true.
    void read(platform::FileTime modifiedFrom, std::chrono::sys_seconds boundary, const LocalMonths& months,
              const std::atomic<bool>& cancelled);

    /// Calls `visit(const UsageRow&)` for the rows of these files.
    template <class Visit>
    void forEachRow(platform::FileTime modifiedFrom, Visit&& visit) const {
        for (const auto& [path, entry] : entries_) {
            if (entry.found.modified >= modifiedFrom) entry.file.forEachRow(visit);
        }
    }

    [[nodiscard]] const ModelNames& models() const { return models_; }

private:
    struct Entry {
        platform::FileInfo found;
        std::uint64_t walk = 0;  // the last one that found it
        LogFile file;
    };
    struct PathHash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    using Entries = std::unordered_map<std::string, Entry, PathHash, std::equal_to<>>;

    [[nodiscard]] std::vector<Entries::value_type*> changedEntries(platform::FileTime modifiedFrom,
                                                                   std::chrono::sys_seconds boundary,
                                                                   UsageMerging& merging);
    void note(const platform::FoundFile& found);

    const platform::FileSystem& files_;
    const std::uint64_t helpFrom_;
    ModelNames models_;
    Entries entries_;
    std::uint64_t walk_ = 0;
};

}  // namespace tidewatch
