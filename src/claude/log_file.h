#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "claude/log_line.h"
#include "claude/model_names.h"
#include "claude/model_pricing.h"
#include "claude/usage_rows.h"
#include "platform/api/file_system.h"

namespace tidewatch {

/// What is remembered of one log file: enough to tell its usage in any period without opening it again, and
/// to continue reading where it ended.
struct LogFile {
    std::optional<platform::FileInfo> read;  ///< the file as it was read; nullopt if it must be read anew
    std::uint64_t offset = 0;                ///< after the last whole line
    std::uint64_t fingerprint = 0;           ///< of the bytes before the offset
    std::vector<UsageRow> rows;              ///< of the whole lines
    std::optional<UsageRow> unfinished;      ///< of what stands after the offset, if it counts already
    bool isText = true;                      ///< whether it is all UTF-8; if not, nothing of it counts
    std::chrono::sys_seconds detailFrom;     ///< as in UsageMerging, of all rows
    bool hasDetail = false;                  ///< whether there are rows from then on

    /// Calls `visit(const UsageRow&)` for all rows that count.
    template <class Visit>
    void forEachRow(Visit&& visit) const {
        if (!read || !isText) return;
        for (const auto& row : rows) visit(row);
        if (unfinished) visit(*unfinished);
    }
};

/// Reads log files in pieces. A file that has only grown is continued at its offset, any other one is read
/// from its start. A file with a line of a gigabyte is treated as if it were not text. For one thread.
class LogFileReader final {
public:
    /// Reading ends early once `cancelled` is true; that file must be read anew. `files`, `models` and
    /// `cancelled` must outlive it.
    LogFileReader(const platform::FileSystem& files, ModelNames& models, const std::atomic<bool>& cancelled,
                  UsageMerging merging);

    /// Updates `file` with the file at `path`, which is as `found` says. A file that cannot be read counts
    /// nothing and must be read anew.
    void update(const std::string& path, const platform::FileInfo& found, LogFile& file);

private:
    enum class Start { atBegin, atOffset };
    struct Model {
        std::string name;
        std::uint32_t id;
        const ModelPricing* pricing;
    };

    [[nodiscard]] bool tryUpdate(const std::string& path, const platform::FileInfo& found, Start start,
                                 LogFile& file);
    [[nodiscard]] bool readPieces(platform::FileReader& reader, std::uint64_t length, std::size_t overlap,
                                  LogFile& file);
    [[nodiscard]] bool makeRoom(std::size_t used);
    void addLines(std::string_view lines, std::vector<UsageRow>& rows);
    [[nodiscard]] const Model& knownModel(std::string_view name);
    [[nodiscard]] std::optional<UsageRow> rowOf(std::string_view line);

    const platform::FileSystem& files_;
    ModelNames& models_;
    const std::atomic<bool>& cancelled_;
    UsageMerging merging_;
    LogLineReader lineReader_;
    std::vector<char> buffer_;
    std::vector<Model> knownModels_;  // of late
};

}  // namespace tidewatch
