#pragma once

#include <QTranslator>

namespace tidewatch {

/// The toolkit's own words, in Spanish: what its dialogs say. The names of keys stay as keyboards have them.
class ToolkitTranslator final : public QTranslator {
public:
    /// False if they are not on the machine; the words are English then.
    [[nodiscard]] bool load();

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation,
                                    int n) const override;
};

}  // namespace tidewatch
