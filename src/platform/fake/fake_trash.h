#pragma once

#include <vector>

#include "platform/api/trash.h"

namespace tidewatch::platform {

/// A trash that takes everything, unless the test makes it fail.
class FakeTrash final : public Trash {
public:
    Status moveToTrash(const std::string& path) override {
        if (status.ok()) trashed.push_back(path);
        return status;
    }

    Status status = success();
    std::vector<std::string> trashed;
};

}  // namespace tidewatch::platform
