#include <cstdlib>

#include "app/desktop/application.h"
#include "native/native_platform.h"
#include "native/process_environment.h"

// No command line options: the toolkit would interpret its own as well.
int main(int, char* arguments[]) {
    const tidewatch::platform::ProcessEnvironment environment;
    if (!environment.hasDisplay()) return EXIT_FAILURE;
    int code = EXIT_FAILURE;
    {
        tidewatch::Application application(arguments[0]);
        tidewatch::platform::NativePlatform machine(environment);
        code = application.run(machine.platform());
    }
    // What is left are threads that look up the names of hosts, for as long as name servers are silent.
    std::_Exit(code);
}
