#include "claude/views/claude_rows.h"

#include <QStringList>

namespace tidewatch {

QString ClaudeLimit::accessibleText() const {
    QStringList parts{value, reset, remark};
    parts.removeAll("");
    return label + ": " + parts.join(", ");
}

}  // namespace tidewatch
