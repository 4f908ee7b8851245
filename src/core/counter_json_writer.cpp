#include <array>
#include <charconv>
#include <string_view>
#include <utility>
#include <vector>

#include "core/counter_json.h"
#include "core/json_writer.h"

namespace tidewatch {
namespace {

void appendNumber(std::string& out, std::int64_t number) {
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    out.append(digits.data(), end);
}

class Writer final {
public:
    Writer(const CounterRecord& record, std::size_t expectedSize) : record_(record) {
        out_.reserve(expectedSize);
        for (std::size_t level = 0; level < record.depth(); ++level) {
            indents_.push_back("\n" + std::string(2 * (level + 1), ' '));
            memberStarts_.emplace_back(level == 0 ? 0 : record.nameCount());
        }
    }

    std::string write() {
        appendObject(0, record_.top());
        return std::move(out_);
    }

private:
    void appendObject(std::size_t level, CounterRecord::Range members) {
        out_ += '{';
        if (members.size() == 0) out_ += '\n';
        for (auto node = members.begin; node < members.end; ++node) {
            if (node != members.begin) out_ += ',';
            appendMemberStart(level, node);
            if (level + 1 == record_.depth()) {
                appendNumber(out_, record_.seconds(node).count());
            } else {
                appendObject(level + 1, record_.children(level, node));
            }
        }
        out_ += level == 0 ? std::string_view("\n") : std::string_view(indents_[level - 1]);
        out_ += '}';
    }

    // Names recur hundreds of thousands of times in a record of years; each is escaped once.
    void appendMemberStart(std::size_t level, CounterRecord::Index node) {
        if (level == 0) {
            appendMemberStart(out_, level, record_.text(level, node));
            return;
        }
        const auto name = record_.nameId(level, node);
        auto& start = memberStarts_[level][name];
        if (start.empty()) appendMemberStart(start, level, record_.name(name));
        out_ += start;
    }

    void appendMemberStart(std::string& out, std::size_t level, std::string_view key) const {
        out += indents_[level];
        out += '"';
        appendJsonEscaped(out, key);
        out += "\" : ";
    }

    const CounterRecord& record_;
    std::string out_;
    std::vector<std::string> indents_;
    std::vector<std::vector<std::string>> memberStarts_;
};

}  // namespace

std::string writeCounters(const CounterRecord& record, std::size_t expectedSize) {
    return Writer(record, expectedSize).write();
}

}  // namespace tidewatch
