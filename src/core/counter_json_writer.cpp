#include <algorithm>
#include <charconv>
#include <cstring>
#include <string_view>
#include <vector>

#include "core/counter_json.h"
#include "core/json_writer.h"

namespace tidewatch {
namespace {

// Finds out how long a text becomes, so that its memory is asked for once and filled without looking back.
class Measure final {
public:
    void text(std::string_view text) { size_ += text.size(); }

    void number(std::int64_t number) {
        auto rest = static_cast<std::uint64_t>(number);
        if (number < 0) {
            rest = 0 - rest;
            ++size_;
        }
        ++size_;
        for (; rest >= 10; rest /= 10) ++size_;
    }

    [[nodiscard]] std::size_t size() const { return size_; }

private:
    std::size_t size_ = 0;
};

// Writes into memory that Measure has found large enough.
class Fill final {
public:
    explicit Fill(std::string& out) : next_(out.data()), end_(out.data() + out.size()) {}

    void text(std::string_view text) {
        std::memcpy(next_, text.data(), text.size());
        next_ += text.size();
    }

    void number(std::int64_t number) { next_ = std::to_chars(next_, end_, number).ptr; }

private:
    char* next_;
    char* end_;
};

class Writer final {
public:
    explicit Writer(const CounterRecord& record) : record_(record) {
        for (std::size_t level = 0; level < record.depth(); ++level) {
            indents_.push_back(std::string(",\n").append(2 * (level + 1), ' '));
            memberStarts_.emplace_back();
            // Names recur hundreds of thousands of times in a record of years; each is escaped once.
            for (std::uint32_t name = 0; level > 0 && name < record.nameCount(); ++name) {
                memberStarts_.back().push_back(indents_.back() + quoted(record.name(name)) + " : ");
            }
        }
    }

    template <class Sink>
    void writeTo(Sink& sink) const {
        writeObject(sink, 0, record_.top());
    }

private:
    static std::string quoted(std::string_view key) {
        std::string result = "\"";
        appendJsonEscaped(result, key);
        return result + '"';
    }

    template <class Sink>
    void writeObject(Sink& sink, std::size_t level, CounterRecord::Range members) const {
        const bool isLast = level + 1 == record_.depth();
        sink.text(members.size() == 0 ? "{\n" : "{");
        for (auto node = members.begin; node < members.end; ++node) {
            writeMemberStart(sink, level, node, node == members.begin);
            if (isLast) {
                sink.number(record_.seconds(node).count());
            } else {
                writeObject(sink, level + 1, record_.children(level, node));
            }
        }
        sink.text(level == 0 ? "\n" : std::string_view(indents_[level - 1]).substr(1));
        sink.text("}");
    }

    // The comma before the member, but for the first one, to the blank behind its colon.
    template <class Sink>
    void writeMemberStart(Sink& sink, std::size_t level, CounterRecord::Index node, bool isFirst) const {
        const std::size_t skipped = isFirst ? 1 : 0;
        if (level > 0) {
            sink.text(std::string_view(memberStarts_[level][record_.nameId(level, node)]).substr(skipped));
            return;
        }
        sink.text(std::string_view(indents_[0]).substr(skipped));
        const auto key = record_.text(0, node);
        if (std::ranges::any_of(key, mustBeEscapedInJson)) {
            sink.text(quoted(key));
        } else {
            sink.text("\"");
            sink.text(key);
            sink.text("\"");
        }
        sink.text(" : ");
    }

    const CounterRecord& record_;
    std::vector<std::string> indents_;                    // a level: from the comma to the quote
    std::vector<std::vector<std::string>> memberStarts_;  // a level and a name
};

}  // namespace

std::string writeCounters(const CounterRecord& record) {
    const Writer writer(record);
    Measure measure;
    writer.writeTo(measure);
    std::string text(measure.size(), '\0');
    Fill fill(text);
    writer.writeTo(fill);
    return text;
}

}  // namespace tidewatch
