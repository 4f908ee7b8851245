#include "native/native_platform.h"
#include "shell/application.h"

int main(int argumentCount, char* arguments[]) {
    tidewatch::platform::prepareEnvironment();
    tidewatch::Application application(argumentCount, arguments);
    tidewatch::platform::NativePlatform machine;
    return application.run(machine.platform());
}
