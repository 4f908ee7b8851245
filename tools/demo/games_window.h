#pragma once

#include <QObject>
#include <memory>

#include "app/desktop/composition.h"
#include "platform/api/process_memory.h"
#include "wellbeing/views/games/games_presenter.h"

namespace tidewatch {

/// A window with the mini-arcade; appears whenever the statistics are shown. Its view exists while it is
/// open.
class GamesWindow final {
public:
    /// Both must outlive this object.
    GamesWindow(DesktopComposition& program, platform::ProcessMemory& memory);
    ~GamesWindow();
    GamesWindow(const GamesWindow&) = delete;
    GamesWindow& operator=(const GamesWindow&) = delete;

private:
    class Frame;

    void open();
    void close();
    void applyTheme();

    DesktopComposition& program_;
    platform::ProcessMemory& memory_;
    GamesPresenter presenter_;
    std::unique_ptr<Frame> window_;
    /// A closed window, kept until its own view has returned.
    std::unique_ptr<Frame> retired_;
    QObject retirement_;
    Connection statisticsShown_;
    Connection themeChanges_;
};

}  // namespace tidewatch
