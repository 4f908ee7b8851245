// The program as ./run demo starts it: with a window for the mini-arcade.

#include <cstdlib>
#include <memory>

#include "app/desktop/application.h"
#include "native/native_platform.h"
#include "native/process_environment.h"
#include "tools/demo/games_window.h"

int main(int, char* arguments[]) {
    const tidewatch::platform::ProcessEnvironment environment;
    if (!environment.hasDisplay()) return EXIT_FAILURE;
    tidewatch::Application application(arguments[0]);
    tidewatch::platform::NativePlatform machine(environment);
    const auto platform = machine.platform();
    return application.run(platform, [&platform](tidewatch::DesktopComposition& program) {
        return std::make_shared<tidewatch::GamesWindow>(program, platform.memory);
    });
}
