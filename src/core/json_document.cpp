#include "core/json_document.h"

#include "core/utf8.h"

namespace tidewatch {

std::optional<JsonDocument> JsonDocument::parse(std::string text) {
    text.reserve(text.size() + simdjson::SIMDJSON_PADDING);
    const auto skipped = text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    constexpr bool copyForPadding = false;
    auto parser = std::make_unique<Parser>();
    simdjson::dom::element root;
    if (parser->parse(text.data() + skipped, text.size() - skipped, copyForPadding).get(root) !=
        simdjson::SUCCESS) {
        return std::nullopt;
    }
    return JsonDocument(std::move(parser), root);
}

}  // namespace tidewatch
