#include "shell/windows/toolkit_words.h"

#include <QLibraryInfo>
#include <string_view>

namespace tidewatch {

bool ToolkitWords::load() {
    return QTranslator::load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

QString ToolkitWords::translate(const char* context, const char* sourceText, const char* disambiguation,
                                int n) const {
    if (std::string_view(context) == "QShortcut") return {};
    return QTranslator::translate(context, sourceText, disambiguation, n);
}

}  // namespace tidewatch
