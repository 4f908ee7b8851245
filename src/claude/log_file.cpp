#include "claude/log_file.h"

#include <simdjson.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <span>
#include <utility>

#include "claude/usage_search.h"

namespace tidewatch {
namespace {

using platform::FileInfo;

// A line that does not fit makes the buffer grow, up to the longest line that is read.
constexpr std::size_t pieceSize = std::size_t(256) << 10;
constexpr std::size_t maxLineSize = std::size_t(1) << 30;

// The bytes before the offset that are compared to tell a file that has grown from one that was rewritten in
// place: log lines end in identifiers and times.
constexpr std::uint64_t maxOverlap = 64;

// More models than a log usually has.
constexpr std::size_t maxKnownModels = 16;

std::size_t overlapOf(std::uint64_t offset) {
    return static_cast<std::size_t>(std::min(offset, maxOverlap));
}

std::uint64_t fingerprintOf(std::string_view bytes) {
    return std::hash<std::string_view>()(bytes);
}

bool isUtf8(std::string_view text) {
    return simdjson::validate_utf8(text.data(), text.size());
}

// The position after the last newline. Lines are long, and rfind() is slow.
std::size_t lastLineBegin(std::string_view text) {
    const auto* newline = static_cast<const char*>(::memrchr(text.data(), '\n', text.size()));
    return newline ? static_cast<std::size_t>(newline - text.data()) + 1 : 0;
}

bool hasGrown(const LogFile& file, const FileInfo& found) {
    return file.read && file.isText && file.read->identity == found.identity &&
           file.read->size < found.size && file.offset > 0;
}

}  // namespace

LogFileReader::LogFileReader(const platform::FileSystem& files, ModelNames& models,
                             const std::atomic<bool>& cancelled, UsageMerging merging)
    : files_(files), models_(models), cancelled_(cancelled), merging_(std::move(merging)) {}

void LogFileReader::update(const std::string& path, const FileInfo& found, LogFile& file) {
    const bool done = (hasGrown(file, found) && tryUpdate(path, found, Start::atOffset, file)) ||
                      tryUpdate(path, found, Start::atBegin, file);
    if (!done) file = LogFile();
}

bool LogFileReader::tryUpdate(const std::string& path, const FileInfo& found, Start start, LogFile& file) {
    if (start == Start::atBegin) file = LogFile();
    const auto overlap = overlapOf(file.offset);
    const auto begin = file.offset - overlap;
    file.read.reset();
    file.unfinished.reset();
    const auto reader = files_.openForReading(path, begin);
    if (!reader || !readPieces(*reader.value(), found.size - begin, overlap, file)) return false;
    if (!file.isText) file.rows.clear();
    file.rows.shrink_to_fit();
    file.read = found;
    file.detailFrom = std::max(file.detailFrom, merging_.detailFrom());
    file.hasDetail =
        std::ranges::any_of(file.rows, [&](const UsageRow& row) { return merging_.isDetail(row); });
    return true;
}

bool LogFileReader::readPieces(platform::FileReader& reader, std::uint64_t length, std::size_t overlap,
                               LogFile& file) {
    const bool isContinued = overlap > 0;
    bool isCompared = !isContinued;
    std::size_t used = 0;  // bytes of the buffer: the overlap, and what has not been read as lines
    while (length > 0) {
        if (cancelled_.load(std::memory_order_relaxed)) return false;
        if (!makeRoom(used)) {
            file.isText = false;
            return true;
        }
        const auto room = buffer_.size() - LogLineReader::padding - used;
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(room, length));
        const auto got = reader.read(std::span(buffer_.data() + used, wanted));
        if (!got) return false;
        const bool isTruncated = got.value() < wanted;
        if (isTruncated && isContinued) return false;
        used += got.value();
        length = isTruncated ? 0 : length - wanted;

        const std::string_view text(buffer_.data(), used);
        if (!std::exchange(isCompared, true) && fingerprintOf(text.substr(0, overlap)) != file.fingerprint) {
            return false;
        }
        const auto unread = text.substr(overlap);
        const auto lines = unread.substr(0, lastLineBegin(unread));
        file.isText = isUtf8(lines);
        if (!file.isText) return true;
        addLines(lines, file.rows);
        file.offset += lines.size();
        const auto end = overlap + lines.size();
        overlap = overlapOf(file.offset);
        file.fingerprint = fingerprintOf(text.substr(end - overlap, overlap));
        std::copy(text.begin() + static_cast<std::ptrdiff_t>(end - overlap), text.end(), buffer_.begin());
        used -= end - overlap;
    }
    const auto rest = std::string_view(buffer_.data(), used).substr(overlap);
    file.isText = isUtf8(rest);
    if (file.isText && findUsage(rest, 0) != std::string_view::npos) file.unfinished = rowOf(rest);
    return true;
}

bool LogFileReader::makeRoom(std::size_t used) {
    if (used == 0 || buffer_.empty()) {
        buffer_.resize(pieceSize + LogLineReader::padding);
        buffer_.shrink_to_fit();
    }
    if (used + LogLineReader::padding < buffer_.size()) return true;
    if (buffer_.size() > maxLineSize) return false;
    buffer_.resize(2 * buffer_.size());
    return true;
}

void LogFileReader::addLines(std::string_view lines, std::vector<UsageRow>& rows) {
    for (auto hit = findUsage(lines, 0); hit != std::string_view::npos;) {
        const auto begin = lastLineBegin(lines.substr(0, hit));
        const auto end = lines.find('\n', hit);
        if (const auto row = rowOf(lines.substr(begin, end - begin))) merging_.add(*row, rows);
        hit = findUsage(lines, end + 1);
    }
}

const LogFileReader::Model& LogFileReader::knownModel(std::string_view name) {
    const auto known = std::ranges::find(knownModels_, name, &Model::name);
    if (known != knownModels_.end()) return *known;
    if (knownModels_.size() == maxKnownModels) knownModels_.clear();
    return knownModels_.emplace_back(Model{std::string(name), models_.idOf(name), &pricingOf(name)});
}

std::optional<UsageRow> LogFileReader::rowOf(std::string_view line) {
    const auto read = lineReader_.read(line);
    if (!read) return std::nullopt;
    const auto& model = knownModel(read->model);
    UsageRow row;
    row.first = read->date;
    row.model = model.id;
    row.tokens = read->tokens;
    row.cost.add(costUsd(read->tokens, *model.pricing));
    row.lines = 1;
    if (read->tokens.output > 0) {
        row.linesWithOutput = 1;
        row.outputThousands = read->tokens.output / 1000;
    }
    return row;
}

}  // namespace tidewatch
