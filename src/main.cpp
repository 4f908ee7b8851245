#include <cstdlib>

#include "app/desktop/application.h"
#include "native/native_platform.h"
#include "native/process_environment.h"

// Nothing is read from the command line: the toolkit would take orders from it, too.
int main(int, char* arguments[]) {
    const tidewatch::platform::ProcessEnvironment environment;
    if (!environment.hasDisplay()) return EXIT_FAILURE;
    tidewatch::Application application(arguments[0]);
    tidewatch::platform::NativePlatform machine(environment);
    return application.run(machine.platform());
}
