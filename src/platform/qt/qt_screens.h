#pragma once

#include <QTimer>

#include "platform/api/screens.h"

class QScreen;

namespace tidewatch::platform {

/// The toolkit's screens. The application object must outlive this one.
class QtScreens final : public Screens {
public:
    QtScreens();

    [[nodiscard]] std::vector<Screen> all() const override;
    [[nodiscard]] std::optional<Screen> main() const override;
    Connection onChanged(std::function<void()> changed) override;

private:
    void watch(const QScreen& screen);

    Signal<> changed_;
    QTimer settling_;
};

}  // namespace tidewatch::platform
