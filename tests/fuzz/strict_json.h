#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace tidewatch::fuzz {

/// A JSON value as written: members in order, including duplicates, numbers unparsed.
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

    /// The members with that name, in order; empty if it is no object.
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

/// Parses JSON strictly according to RFC 8259, after an optional byte order mark: an independent check of
/// what the program's fast parser accepts. Rejects lone surrogates and invalid UTF-8. Returns nullopt for
/// nesting deeper than 900 levels.
[[nodiscard]] std::optional<Json> parseStrictly(std::string_view text);

/// Whether `text` is valid UTF-8 according to RFC 3629.
[[nodiscard]] bool isUtf8(std::string_view text);

/// The double nearest to a JSON number.
[[nodiscard]] double realOf(const Json::Number& number);

}  // namespace tidewatch::fuzz
