#pragma once

#include <simdjson.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace tidewatch {

/// A JSON text, read whole.
class JsonDocument final {
public:
    /// Nothing if `text` is not JSON. A byte order mark before it is passed over.
    [[nodiscard]] static std::optional<JsonDocument> parse(std::string text);

    /// Valid as long as the document; so are the texts in it.
    [[nodiscard]] simdjson::dom::element root() const { return root_; }

private:
    using Parser = simdjson::dom::parser;

    JsonDocument(std::unique_ptr<Parser> parser, simdjson::dom::element root)
        : parser_(std::move(parser)), root_(root) {}

    std::unique_ptr<Parser> parser_;  // the root points into it
    simdjson::dom::element root_;
};

}  // namespace tidewatch
