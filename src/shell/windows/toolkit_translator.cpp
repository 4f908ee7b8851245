#include "shell/windows/toolkit_translator.h"

#include <QLibraryInfo>
#include <string_view>

namespace tidewatch {

bool ToolkitTranslator::load() {
    return QTranslator::load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

QString ToolkitTranslator::translate(const char* context, const char* sourceText, const char* disambiguation,
                                     int n) const {
    if (std::string_view(context) == "QShortcut") return {};
    return QTranslator::translate(context, sourceText, disambiguation, n);
}

}  // namespace tidewatch
