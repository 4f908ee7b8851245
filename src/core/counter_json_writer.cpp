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

    /// Copies it, or what follows its first `skipped` bytes, to `target`, which has room for one more stride;
    /// returns the end of the copy.
    char* copyTo(char* target, std::size_t skipped = 0) const {
        std::memcpy(target, text_.data() + skipped, stride);
        const auto size = size_ - skipped;
        if (size > stride) std::memcpy(target + stride, text_.data() + skipped + stride, size - stride);
        return target + size;
    }

private:
    std::size_t size_;
    std::string text_;
};

using Word = std::uint64_t;

Word wordAt(const char* bytes) {
    Word word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

constexpr Word eightTimes(unsigned char byte) {
    return 0x0101010101010101U * Word(byte);
}

// Whether one of the eight bytes is less than `limit`, which is at most 0x80.
constexpr bool hasLess(Word word, unsigned char limit) {
    return ((word - eightTimes(limit)) & ~word & eightTimes(0x80)) != 0;
}

constexpr bool hasByte(Word word, unsigned char byte) {
    return hasLess(word ^ eightTimes(byte), 1);
}

constexpr bool mustBeEscaped(Word word) {
    return hasLess(word, 0x20) || hasByte(word, '"') || hasByte(word, '\\') || hasByte(word, '/');
}

bool mustBeEscaped(std::string_view text) {
    if (text.size() < sizeof(Word)) return std::ranges::any_of(text, mustBeEscapedInJson);
    const auto* last = text.data() + text.size() - sizeof(Word);
    for (const auto* next = text.data(); next < last; next += sizeof(Word)) {
        if (mustBeEscaped(wordAt(next))) return true;
    }
    return mustBeEscaped(wordAt(last));
}

// Collects short texts into pieces for a sink.
class PieceBuffer final {
public:
    explicit PieceBuffer(platform::ByteSink& sink) : sink_(sink) {}

    void character(char c) {
        makeRoomFor(1);
        *next_++ = c;
    }

    void text(const PaddedText& text, std::size_t skipped = 0) {
        makeRoomFor(text.size() + stride);
        next_ = text.copyTo(next_, skipped);
    }

    void text(const PaddedText& before, std::string_view text, const PaddedText& after) {
        makeRoomFor(before.size() + text.size() + after.size() + stride);
        next_ = std::ranges::copy(text, before.copyTo(next_)).out;
        next_ = after.copyTo(next_);
    }

    /// A text, or what follows its first `skipped` bytes, and a number behind it.
    void counter(const PaddedText& text, std::size_t skipped, std::int64_t counter) {
        makeRoomFor(text.size() + stride + maxDigits);
        next_ = std::to_chars(text.copyTo(next_, skipped), end_, counter).ptr;
    }

    void number(std::int64_t number) {
        makeRoomFor(maxDigits);
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
    static constexpr std::size_t maxDigits = 20;

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
            ends_.emplace_back(lineStart(level) + "}");
            memberStarts_.emplace_back();
            // Names recur hundreds of thousands of times; each is escaped once.
            for (std::uint32_t name = 0; level > 0 && name < record.nameCount(); ++name) {
                memberStarts_.back().emplace_back(nextMember(level + 1) + escaped(record.name(name)) +
                                                  "\" : ");
            }
        }
    }

    void write(platform::ByteSink& sink) {
        PieceBuffer buffer(sink);
        writeObject(buffer, 0, record_.top());
        buffer.flush();
    }

private:
    static std::string escaped(std::string_view key) {
        std::string result;
        appendJsonEscaped(result, key);
        return result;
    }

    static std::string lineStart(std::size_t level) { return std::string("\n").append(2 * level, ' '); }

    // What separates a member from the name of the next one.
    static std::string nextMember(std::size_t level) {
        std::string text(",");
        text += lineStart(level);
        text += '"';
        return text;
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
        buffer.text(ends_[level]);
    }

    void writeKeys(PieceBuffer& buffer, CounterRecord::Range keys) {
        const PaddedText first(lineStart(1) + '"');
        const PaddedText next(nextMember(1));
        const PaddedText end("\" : ");
        for (auto node = keys.begin; node < keys.end && buffer.isOpen(); ++node) {
            const auto key = record_.text(0, node);
            const auto& start = node == keys.begin ? first : next;
            if (mustBeEscaped(key)) {
                buffer.text(start, escaped(key), end);
            } else {
                buffer.text(start, key, end);
            }
            if (record_.depth() == 1) {
                buffer.number(record_.seconds(node).count());
            } else {
                writeObject(buffer, 1, record_.children(0, node));
            }
        }
    }

    void writeNames(PieceBuffer& buffer, std::size_t level, CounterRecord::Range members) {
        const auto& starts = memberStarts_[level];
        std::size_t skipped = 1;  // no comma before the first member
        if (level + 1 == record_.depth()) {
            leaves_.forEach(members, [&](std::uint32_t name, Seconds seconds) {
                buffer.counter(starts[name], std::exchange(skipped, 0), seconds.count());
            });
            return;
        }
        for (auto node = members.begin; node < members.end; ++node) {
            buffer.text(starts[record_.nameId(level, node)], std::exchange(skipped, 0));
            writeObject(buffer, level + 1, record_.children(level, node));
        }
    }

    const CounterRecord& record_;
    LeafReader leaves_;
    std::vector<PaddedText> ends_;                       // of the objects on a level
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
