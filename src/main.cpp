#include <cstdlib>

#include "app/desktop/application.h"
#include "native/native_platform.h"
#include "native/process_environment.h"

// No command line options: the toolkit would interpret its own as well.
int main(int, char* arguments[]) {
    const tidewatch::platform::ProcessEnvironment environment;
    if (!environment.hasDisplay()) return EXIT_FAILURE;
    tidewatch::Application application(arguments[0]);
    tidewatch::platform::NativePlatform machine(environment);
    return application.run(machine.platform());
}
