#include <algorithm>
#include <charconv>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/counter_json.h"
#include "core/json_writer.h"
#include "core/leaf_reader.h"

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
    [[nodiscard]] std::string_view text() const { return {text_.data(), size_}; }

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

// Collects short texts into pieces for a sink.
class PieceBuffer final {
public:
    explicit PieceBuffer(platform::ByteSink& sink) : sink_(sink) {}

    void character(char c) {
        makeRoomFor(1);
        *next_++ = c;
    }
    void text(std::string_view text) {
        makeRoomFor(text.size());
        next_ = std::ranges::copy(text, next_).out;
    }

    /// A text and a number behind it.
    void counter(const PaddedText& text, std::int64_t number) {
        constexpr std::size_t maxDigits = 20;
        makeRoomFor(text.size() + stride + maxDigits);
        next_ = text.copyTo(next_);
        next_ = std::to_chars(next_, end_, number).ptr;
    }

    void flush() {
        open_ = open_ && sink_.append({bytes_.data(), next_});
        next_ = bytes_.data();
    }

    /// False once the sink could not store a piece.
    [[nodiscard]] bool isOpen() const { return open_; }

private:
    // Small enough to stay in a processor's cache until it is written.
    static constexpr std::size_t pieceSize = std::size_t(128) * 1024;

    void makeRoomFor(std::size_t size) {
        if (static_cast<std::size_t>(end_ - next_) >= size) return;
        flush();
        if (bytes_.size() < size) {
            bytes_.resize(size);
            next_ = bytes_.data();
            end_ = next_ + bytes_.size();
        }
    }

    platform::ByteSink& sink_;
    std::vector<char> bytes_ = std::vector<char>(pieceSize);
    char* next_ = bytes_.data();
    char* end_ = next_ + bytes_.size();
    bool open_ = true;
};

class Writer final {
public:
    explicit Writer(const CounterRecord& record) : record_(record), leaves_(record) {
        for (std::size_t level = 0; level < record.depth(); ++level) {
            indents_.push_back(std::string("\n").append(2 * (level + 1), ' '));
            memberStarts_.emplace_back();
            // Names recur hundreds of thousands of times; each is escaped once.
            for (std::uint32_t name = 0; level > 0 && name < record.nameCount(); ++name) {
                memberStarts_.back().emplace_back(indents_.back() + quoted(record.name(name)) + " : ");
            }
        }
    }

    void write(platform::ByteSink& sink) {
        PieceBuffer buffer(sink);
        writeObject(buffer, 0, record_.top());
        buffer.flush();
    }

private:
    static std::string quoted(std::string_view key) {
        std::string result = "\"";
        appendJsonEscaped(result, key);
        return result + '"';
    }

    void writeObject(PieceBuffer& buffer, std::size_t level, CounterRecord::Range members) {
        buffer.character('{');
        if (members.size() == 0) {
            buffer.character('\n');
        } else if (level == 0) {
            writeKeys(buffer, members);
        } else {
            writeNames(buffer, level, members);
        }
        buffer.text(level == 0 ? "\n" : std::string_view(indents_[level - 1]));
        buffer.character('}');
    }

    void writeKeys(PieceBuffer& buffer, CounterRecord::Range keys) {
        for (auto node = keys.begin; node < keys.end && buffer.isOpen(); ++node) {
            if (node != keys.begin) buffer.character(',');
            buffer.text(indents_[0]);
            writeKey(buffer, record_.text(0, node));
            buffer.text(" : ");
            if (record_.depth() == 1) {
                buffer.text(std::to_string(record_.seconds(node).count()));
            } else {
                writeObject(buffer, 1, record_.children(0, node));
            }
        }
    }

    static void writeKey(PieceBuffer& buffer, std::string_view key) {
        if (std::ranges::any_of(key, mustBeEscapedInJson)) {
            buffer.text(quoted(key));
        } else {
            buffer.character('"');
            buffer.text(key);
            buffer.character('"');
        }
    }

    void writeNames(PieceBuffer& buffer, std::size_t level, CounterRecord::Range members) {
        const auto& starts = memberStarts_[level];
        bool isFirst = true;
        const auto separate = [&] {
            if (!std::exchange(isFirst, false)) buffer.character(',');
        };
        if (level + 1 == record_.depth()) {
            leaves_.forEach(members, [&](std::uint32_t name, Seconds seconds) {
                separate();
                buffer.counter(starts[name], seconds.count());
            });
            return;
        }
        for (auto node = members.begin; node < members.end; ++node) {
            separate();
            buffer.text(starts[record_.nameId(level, node)].text());
            writeObject(buffer, level + 1, record_.children(level, node));
        }
    }

    const CounterRecord& record_;
    LeafReader leaves_;
    std::vector<std::string> indents_;                   // a level: from the end of a line to the quote
    std::vector<std::vector<PaddedText>> memberStarts_;  // a level and a name
};

}  // namespace

void serializeCounters(const CounterRecord& record, platform::ByteSink& sink) {
    Writer(record).write(sink);
}

std::string serializeCounters(const CounterRecord& record) {
    platform::StringSink sink;
    serializeCounters(record, sink);
    return std::move(sink).text();
}

}  // namespace tidewatch
