#pragma once

#include <simdjson.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace tidewatch {

/// A parsed JSON text.
class JsonDocument final {
public:
    /// Returns nullopt if `text` is not JSON. A leading byte order mark is ignored.
    [[nodiscard]] static std::optional<JsonDocument> parse(std::string text);

    /// Valid for the document's lifetime, as are the strings in it.
    [[nodiscard]] simdjson::dom::element root() const { return root_; }

private:
    using Parser = simdjson::dom::parser;

    JsonDocument(std::unique_ptr<Parser> parser, simdjson::dom::element root)
        : parser_(std::move(parser)), root_(root) {}

    std::unique_ptr<Parser> parser_;  // the root points into it
    simdjson::dom::element root_;
};

}  // namespace tidewatch
