#include <algorithm>
#include <charconv>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/counter_json.h"
#include "core/json_writer.h"

namespace tidewatch {
namespace {

// Short pieces are copied together with the bytes after them, at a constant length.
constexpr std::size_t stride = 64;

// A text followed by enough readable bytes to be copied in whole strides.
class PaddedText final {
public:
    explicit PaddedText(std::string text) : size_(text.size()), text_(std::move(text)) {
        text_.append(stride, ' ');
    }

    [[nodiscard]] std::size_t size() const { return size_; }

    /// Copies it to `target`, which has room for one more stride; returns the end of the copy.
    char* copyTo(char* target) const {
        std::memcpy(target, text_.data(), stride);
        if (size_ > stride) std::memcpy(target + stride, text_.data() + stride, size_ - stride);
        return target + size_;
    }

private:
    std::size_t size_;
    std::string text_;
};

// Computes an upper bound of the text's length, so that memory is allocated once and filled without checking.
class Measure final {
public:
    void character(char) { ++size_; }
    void text(std::string_view text) { size_ += text.size(); }
    void text(const PaddedText& text) { size_ += text.size(); }
    void number(std::int64_t) {
        constexpr std::size_t maxDigits = 20;
        size_ += maxDigits;
    }

    [[nodiscard]] std::size_t size() const { return size_ + stride; }

private:
    std::size_t size_ = 0;
};

// Writes into memory of the size computed by Measure.
class Fill final {
public:
    explicit Fill(std::size_t size)
        : bytes_(std::make_unique_for_overwrite<char[]>(size)), next_(bytes_.get()), end_(next_ + size) {}

    void character(char c) { *next_++ = c; }
    void text(std::string_view text) { next_ = std::ranges::copy(text, next_).out; }
    void text(const PaddedText& text) { next_ = text.copyTo(next_); }
    void number(std::int64_t number) { next_ = std::to_chars(next_, end_, number).ptr; }

    CounterText take() {
        const auto size = static_cast<std::size_t>(next_ - bytes_.get());
        return {std::move(bytes_), size};
    }

private:
    std::unique_ptr<char[]> bytes_;
    char* next_;
    char* end_;
};

class Writer final {
public:
    explicit Writer(const CounterRecord& record) : record_(record) {
        for (std::size_t level = 0; level < record.depth(); ++level) {
            indents_.push_back(std::string("\n").append(2 * (level + 1), ' '));
            memberStarts_.emplace_back();
            // Names recur hundreds of thousands of times; each is escaped once.
            for (std::uint32_t name = 0; level > 0 && name < record.nameCount(); ++name) {
                memberStarts_.back().emplace_back(indents_.back() + quoted(record.name(name)) + " : ");
            }
        }
    }

    CounterText write() const {
        Measure measure;
        writeObject(measure, 0, record_.top());
        Fill fill(measure.size());
        writeObject(fill, 0, record_.top());
        return fill.take();
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
        sink.character('{');
        if (members.size() == 0) sink.character('\n');
        for (auto node = members.begin; node < members.end; ++node) {
            if (node != members.begin) sink.character(',');
            writeMemberStart(sink, level, node);
            if (isLast) {
                sink.number(record_.seconds(node).count());
            } else {
                writeObject(sink, level + 1, record_.children(level, node));
            }
        }
        sink.text(level == 0 ? "\n" : std::string_view(indents_[level - 1]));
        sink.character('}');
    }

    // From the end of the line before to the blank behind the colon.
    template <class Sink>
    void writeMemberStart(Sink& sink, std::size_t level, CounterRecord::Index node) const {
        if (level > 0) {
            sink.text(memberStarts_[level][record_.nameId(level, node)]);
            return;
        }
        sink.text(indents_[0]);
        const auto key = record_.text(0, node);
        if (std::ranges::any_of(key, mustBeEscapedInJson)) {
            sink.text(quoted(key));
        } else {
            sink.character('"');
            sink.text(key);
            sink.character('"');
        }
        sink.text(" : ");
    }

    const CounterRecord& record_;
    std::vector<std::string> indents_;                   // a level: from the end of a line to the quote
    std::vector<std::vector<PaddedText>> memberStarts_;  // a level and a name
};

}  // namespace

CounterText serializeCounters(const CounterRecord& record) {
    return Writer(record).write();
}

}  // namespace tidewatch
