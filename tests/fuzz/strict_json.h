#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace tidewatch::fuzz {

/// A JSON value as it stands in its text: members in their order and with their repetitions, numbers as
/// spelled.
class Json final {
public:
    struct Number {
        std::string spelled;
    };
    using Elements = std::vector<Json>;
    using Members = std::vector<std::pair<std::string, Json>>;

    static Json null() { return {}; }
    static Json of(bool value);
    static Json of(Number value);
    static Json of(std::string value);
    static Json of(Elements value);
    static Json of(Members value);

    /// The value if it is of that type: bool, Number, std::string, Elements or Members.
    template <class Type>
    [[nodiscard]] const Type* as() const {
        if constexpr (std::is_same_v<Type, bool>) return kind_ == Kind::boolean ? &boolean_ : nullptr;
        if constexpr (std::is_same_v<Type, Number>) return kind_ == Kind::number ? &number_ : nullptr;
        if constexpr (std::is_same_v<Type, std::string>) return kind_ == Kind::text ? &text_ : nullptr;
        if constexpr (std::is_same_v<Type, Elements>) return kind_ == Kind::elements ? &elements_ : nullptr;
        if constexpr (std::is_same_v<Type, Members>) return kind_ == Kind::members ? &members_ : nullptr;
    }

    /// The members of that name, in their order; none if it is no object.
    [[nodiscard]] std::vector<const Json*> all(std::string_view name) const;

private:
    enum class Kind { null, boolean, number, text, elements, members };

    Kind kind_ = Kind::null;
    bool boolean_ = false;
    Number number_;
    std::string text_;
    Elements elements_;
    Members members_;
};

/// Reads JSON to the letter of RFC 8259, after a byte order mark if there is one: a second opinion on what
/// the program's reader, which is made for speed, takes and refuses. Half of a surrogate pair alone is no
/// character, and what is not UTF-8 is no text. Nothing for what is nested more than 900 levels deep.
[[nodiscard]] std::optional<Json> parseStrictly(std::string_view text);

/// Whether `text` is UTF-8, to the letter of RFC 3629.
[[nodiscard]] bool isUtf8(std::string_view text);

/// The nearest double of a number as JSON spells it.
[[nodiscard]] double realOf(const Json::Number& number);

}  // namespace tidewatch::fuzz
