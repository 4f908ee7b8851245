#include "platform/freedesktop/bus_message.h"

#include <bit>
#include <cstring>

namespace tidewatch::platform {

namespace {

constexpr std::size_t fixedHeader = 12;
constexpr std::size_t fieldsBegin = 16;
constexpr std::size_t maxMessageSize = 128 * 1024 * 1024;
constexpr std::uint8_t noReplyExpected = 1;
constexpr std::uint8_t protocol = 1;

enum Field : std::uint8_t {
    pathField = 1,
    interfaceField = 2,
    memberField = 3,
    errorNameField = 4,
    replySerialField = 5,
    destinationField = 6,
    senderField = 7,
    signatureField = 8,
};

std::size_t aligned(std::size_t offset, std::size_t to) {
    return (offset + to - 1) / to * to;
}

/// Reads a message sequentially; past its end every value is 0 and the reader is no longer sound.
class Reader final {
public:
    explicit Reader(std::string_view bytes)
        : bytes_(bytes), swapped_((bytes.front() == 'B') != (std::endian::native == std::endian::big)) {}

    [[nodiscard]] bool isSound() const { return sound_; }
    [[nodiscard]] std::size_t offset() const { return offset_; }
    void seek(std::size_t offset) { offset_ = offset; }
    void align(std::size_t to) { offset_ = aligned(offset_, to); }

    std::uint8_t byte() { return take(1) ? static_cast<std::uint8_t>(bytes_[offset_ - 1]) : 0; }

    std::uint32_t number() {
        align(4);
        std::uint32_t value = 0;
        if (take(sizeof value)) std::memcpy(&value, bytes_.data() + offset_ - sizeof value, sizeof value);
        return swapped_ ? __builtin_bswap32(value) : value;
    }

    std::string_view text() { return textOf(number()); }
    std::string_view signature() { return textOf(byte()); }

private:
    bool take(std::size_t count) {
        sound_ = sound_ && offset_ <= bytes_.size() && bytes_.size() - offset_ >= count;
        if (sound_) offset_ += count;
        return sound_;
    }

    std::string_view textOf(std::size_t length) {
        if (!take(length + 1)) return {};
        return bytes_.substr(offset_ - length - 1, length);
    }

    std::string_view bytes_;
    bool swapped_;
    bool sound_ = true;
    std::size_t offset_ = 0;
};

class Writer final {
public:
    Writer(BusMessage::Type type, std::uint32_t answers) {
        bytes_ += std::endian::native == std::endian::big ? 'B' : 'l';
        bytes_ += static_cast<char>(type);
        bytes_ += static_cast<char>(noReplyExpected);
        bytes_ += static_cast<char>(protocol);
        number(0);                             // the body's length
        number(~answers == 0 ? 1 : ~answers);  // an arbitrary serial; nobody replies to a reply
        number(0);                             // the fields' length
        field(replySerialField, "u");
        number(answers);
    }

    void textField(Field code, char type, std::string_view value) {
        field(code, std::string_view(&type, 1));
        if (type == 'g') {
            signature(value);
        } else {
            text(value);
        }
    }

    /// The message with `body` as its only string.
    std::string finish(std::string_view body) {
        textField(signatureField, 'g', "s");
        setNumber(fixedHeader, static_cast<std::uint32_t>(bytes_.size() - fieldsBegin));
        align(8);
        const auto begin = bytes_.size();
        text(body);
        setNumber(4, static_cast<std::uint32_t>(bytes_.size() - begin));
        return std::move(bytes_);
    }

private:
    void align(std::size_t to) { bytes_.resize(aligned(bytes_.size(), to)); }
    void number(std::uint32_t value) {
        align(4);
        bytes_.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    void setNumber(std::size_t offset, std::uint32_t value) {
        std::memcpy(bytes_.data() + offset, &value, sizeof value);
    }
    void text(std::string_view value) {
        number(static_cast<std::uint32_t>(value.size()));
        bytes_.append(value).push_back('\0');
    }
    void signature(std::string_view value) {
        bytes_ += static_cast<char>(value.size());
        bytes_.append(value).push_back('\0');
    }
    void field(Field code, std::string_view type) {
        align(8);
        bytes_ += static_cast<char>(code);
        signature(type);
    }

    std::string bytes_;
};

/// The offset of the body; nullopt if the header is malformed.
std::optional<std::size_t> readFields(std::string_view bytes, BusMessage& message, std::string_view& body) {
    Reader reader(bytes);
    reader.seek(fixedHeader);
    const std::size_t end = fieldsBegin + reader.number();
    while (reader.isSound() && reader.offset() < end) {
        reader.align(8);
        const auto code = reader.byte();
        const auto type = reader.signature();
        if (type == "u") {
            const auto value = reader.number();
            if (code == replySerialField) message.answers = value;
        } else if (type == "s" || type == "o") {
            const auto value = reader.text();
            if (code == interfaceField) message.interface = value;
            if (code == memberField) message.member = value;
            if (code == destinationField) message.destination = value;
            if (code == senderField) message.sender = value;
        } else if (type == "g") {
            const auto value = reader.signature();
            if (code == signatureField) body = value;
        } else {
            return std::nullopt;
        }
    }
    return reader.isSound() && end <= bytes.size() ? std::optional(aligned(end, 8)) : std::nullopt;
}

}  // namespace

std::optional<std::size_t> BusMessage::sizeAtFront(std::string_view bytes) {
    if (bytes.size() < fieldsBegin) return 0;
    if (bytes.front() != 'l' && bytes.front() != 'B') return std::nullopt;
    Reader reader(bytes);
    reader.seek(4);
    const std::size_t body = reader.number();
    reader.seek(fixedHeader);
    const std::size_t fields = reader.number();
    const auto size = aligned(fieldsBegin + fields, 8) + body;
    return size <= maxMessageSize ? std::optional(size) : std::nullopt;
}

std::optional<BusMessage> BusMessage::parse(std::string_view bytes) {
    const auto size = sizeAtFront(bytes);
    if (!size || *size == 0 || *size > bytes.size()) return std::nullopt;
    BusMessage message;
    message.type = static_cast<Type>(bytes[1]);
    message.wantsReply = message.type == Type::call && (bytes[2] & noReplyExpected) == 0;
    Reader reader(bytes);
    reader.seek(8);
    message.serial = reader.number();
    std::string_view body;
    if (!readFields(bytes, message, body)) return std::nullopt;
    return message;
}

std::string_view BusMessage::text(std::string_view bytes) {
    BusMessage message;
    std::string_view signature;
    const auto begin = readFields(bytes, message, signature);
    if (!begin || signature != "s") return {};
    Reader reader(bytes);
    reader.seek(*begin);
    return reader.text();
}

std::string busError(std::uint32_t serial, std::string_view name, std::string_view words) {
    Writer writer(BusMessage::Type::error, serial);
    writer.textField(errorNameField, 's', name);
    return writer.finish(words);
}

std::string busReply(std::uint32_t serial, std::string_view sender, std::string_view text) {
    Writer writer(BusMessage::Type::reply, serial);
    if (!sender.empty()) writer.textField(senderField, 's', sender);
    return writer.finish(text);
}

}  // namespace tidewatch::platform
