#pragma once

#include "platform/api/screens.h"

namespace tidewatch::platform {

/// The screens as the toolkit knows them. The application object must exist as long as this one.
class QtScreens final : public Screens {
public:
    [[nodiscard]] std::vector<Screen> all() const override;
    [[nodiscard]] std::optional<Screen> main() const override;
};

}  // namespace tidewatch::platform
