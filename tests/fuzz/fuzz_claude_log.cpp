// A file of log lines, read whole and in arbitrary pieces, compared with an independent parser.

#include <algorithm>
#include <atomic>
#include <charconv>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "claude/log_file.h"
#include "claude/quick_line.h"
#include "claude/strict_line.h"
#include "platform/fake/fake_time_zone.h"
#include "platform/fake/memory_file_system.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {
namespace {

const std::string logPath = "/log.jsonl";

// So early that no line is merged with another.
constexpr std::chrono::sys_seconds detailFrom = std::chrono::sys_days(std::chrono::year(0) / 1 / 1);

struct Sums {
    std::int64_t lines = 0;
    unsigned long output = 0;  // wraps
    bool operator==(const Sums&) const = default;
};

Sums sumsOf(const LogFile& file) {
    Sums sums;
    file.forEachRow([&](const UsageRow& row) {
        sums.lines += row.lines;
        sums.output += static_cast<unsigned long>(row.tokens.output);
    });
    return sums;
}

template <class Type>
const Type* last(const Json& object, std::string_view name) {
    const auto all = object.all(name);
    return all.empty() ? nullptr : all.back()->as<Type>();
}

std::int64_t integer(const Json& usage, std::string_view name) {
    const auto* number = last<Json::Number>(usage, name);
    if (!number) return 0;
    std::int64_t value = 0;
    const auto* end = number->spelled.data() + number->spelled.size();
    const auto read = std::from_chars(number->spelled.data(), end, value);
    return read.ec == std::errc() && read.ptr == end ? value : 0;
}

// What an independent parser finds in a line; whether its stamp is a date is not its business.
std::optional<std::int64_t> outputOf(std::string_view line) {
    const auto json = parseStrictly(line);
    if (!json || !json->as<Json::Members>()) return std::nullopt;
    const auto message = json->all("message");
    const bool inMessage = !message.empty() && message.back()->as<Json::Members>();
    const auto usage = (inMessage ? *message.back() : *json).all("usage");
    if (usage.empty() || !usage.back()->as<Json::Members>()) return std::nullopt;
    const auto output = integer(*usage.back(), "output_tokens");
    if (output <= 0 && integer(*usage.back(), "input_tokens") < 1) return std::nullopt;
    return output;
}

// Whether it may be nested deeper than the independent parser goes.
bool isDeep(std::string_view line) {
    return std::ranges::count_if(line, [](char c) { return c == '[' || c == '{'; }) > 800;
}

struct Reading {
    Reading()
        : reader(files, models, cancelled, UsageMerging(detailFrom, LocalMonths(platform::fixedZone({})))) {}

    Sums read() {
        reader.update(logPath, files.inspect(logPath).value(), file);
        return sumsOf(file);
    }

    platform::MemoryFileSystem files;
    ModelNames models;
    std::atomic<bool> cancelled = false;
    LogFileReader reader;
    LogFile file;
};

Sums readWhole(std::string_view content) {
    Reading reading;
    reading.files.put(logPath, content);
    return reading.read();
}

// Reads the file each time that it has grown; the pieces end where the bytes say.
Sums readGrowing(std::string_view content) {
    Reading reading;
    reading.files.put(logPath, "");
    Sums sums;
    for (std::size_t begin = 0; begin < content.size();) {
        const auto length = std::min<std::size_t>(content.size() - begin,
                                                  1 + static_cast<unsigned char>(content[begin]) % 90);
        reading.files.append(logPath, content.substr(begin, length));
        begin += length;
        sums = reading.read();
    }
    return sums;
}

// The quick reading of a line may be uncertain, but says nothing else than the strict one.
void checkQuickReading(std::string_view line) {
    const auto padded =
        std::string(line) + std::string(StrictLineReader::padding, line.empty() ? 'x' : line[0]);
    const auto text = std::string_view(padded).substr(0, line.size());
    const auto quick = QuickLineReader().read(text);
    if (!quick) return;
    StrictLineReader strict;
    require(quick == strict.read(text), "the quick reading says what the strict one does");
}

void checkLines(std::string_view content) {
    Sums read;
    for (std::size_t begin = 0; begin <= content.size();) {
        const auto end = std::min(content.find('\n', begin), content.size());
        const auto line = content.substr(begin, end - begin);
        checkQuickReading(line);
        if (isDeep(line)) return;
        const auto sums = readWhole(line);
        const auto output = outputOf(line);
        require(sums.lines == 0 || (output && sums.output == static_cast<unsigned long>(*output)),
                "a line that counts does so for an independent parser");
        if (sums.lines == 0 && output) {
            // Only for lack of a date: in a message of a line with one it counts.
            const auto dated = R"({"timestamp":"2026-03-01T10:15:30","message":)" + std::string(line) + "}";
            const bool canBeMessage = line.starts_with('{') && parseStrictly(line)->all("message").empty();
            require(!canBeMessage || readWhole(dated).lines == 1,
                    "what counts for an independent parser counts");
        }
        read.lines += sums.lines;
        read.output += sums.output;
        begin = end + 1;
    }
    require(readWhole(content) == read, "a file says what its lines say");
}

}  // namespace

void check(std::string_view input) {
    require(readGrowing(input) == readWhole(input), "a file that grows says what it says when read whole");
    if (!isUtf8(input)) {
        require(readWhole(input) == Sums(), "a file that is not UTF-8 counts nothing");
        return;
    }
    checkLines(input);
}

}  // namespace tidewatch::fuzz
