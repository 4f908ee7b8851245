#pragma once

#include <functional>
#include <string>

#include "core/restorable_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"
#include "shell/widgets/widget_state.h"

namespace tidewatch {

/// Which widgets are on the desktop, and where ("widgets.json"). Main thread only.
class WidgetStore final {
public:
    /// Reads the file; a missing or invalid one yields no states. Both must outlive it.
    WidgetStore(platform::FileSystem& files, platform::Log& log);

    /// The stored state, or the default one.
    [[nodiscard]] WidgetState state(WidgetKind kind) const;

    /// Changes a state in memory and writes the file, unless its content stays as it was last written. A
    /// failure is silent, and the change is kept in memory.
    void update(WidgetKind kind, const std::function<void(WidgetState&)>& change);

    /// Rewrites the file on `disk` if it is missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { file_.restoreOn(disk); }

    [[nodiscard]] const std::string& dataFilePath() const { return file_.path(); }

private:
    RestorableFile file_;
    WidgetStates states_;
    std::string written_;  ///< the content last written; empty before the first write
};

}  // namespace tidewatch
