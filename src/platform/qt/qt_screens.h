#pragma once

#include "platform/api/screens.h"

namespace tidewatch::platform {

/// The toolkit's screens. The application object must outlive this one.
class QtScreens final : public Screens {
public:
    [[nodiscard]] std::vector<Screen> all() const override;
    [[nodiscard]] std::optional<Screen> main() const override;
};

}  // namespace tidewatch::platform
