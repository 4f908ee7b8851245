#pragma once

#include <string>

#include "platform/api/file_system.h"
#include "platform/api/login_item.h"

namespace tidewatch::platform {

/// Start at login as a desktop entry in the user's autostart folder.
class AutostartLoginItem final : public LoginItem {
public:
    /// `configDirectory` and `program` are absolute paths; `files` must outlive this object.
    AutostartLoginItem(FileSystem& files, const std::string& configDirectory, std::string program);

    /// An entry disabled in the desktop's settings counts as not enabled.
    [[nodiscard]] bool isEnabled() const override;
    Status registerItem() override;
    Status unregisterItem() override;

private:
    FileSystem& files_;
    std::string directory_;
    std::string path_;
    std::string program_;
};

}  // namespace tidewatch::platform
