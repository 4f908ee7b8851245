#pragma once

#include <QTranslator>

namespace tidewatch {

/// The toolkit's Spanish translations, for its dialogs. Key names are not translated.
class ToolkitTranslator final : public QTranslator {
public:
    /// False if they are not installed; then texts are English.
    [[nodiscard]] bool load();

    [[nodiscard]] QString translate(const char* context, const char* sourceText, const char* disambiguation,
                                    int n) const override;
};

}  // namespace tidewatch
