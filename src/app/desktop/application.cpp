#include "app/desktop/application.h"

#include <QIcon>
#include <QQuickWindow>
#include <QTimer>
#include <chrono>

#include "app/desktop/composition.h"
#include "core/data_directory.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"
#include "platform/api/process_memory.h"
#include "platform/api/process_termination.h"
#include "platform/api/single_instance.h"
#include "shell/icons/fathom_icons.h"

namespace tidewatch {

namespace {

constexpr std::chrono::seconds settlingTime(4);

int& prepared(int& argumentCount) {
    // Without a GPU the software scene graph needs half the memory and a third of the time.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QCoreApplication::setOrganizationName("brightlooms");
    QCoreApplication::setApplicationName("tidewatch");
    QGuiApplication::setDesktopFileName("com.brightlooms.tidewatch");
    return argumentCount;
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48}) icon.addPixmap(QPixmap::fromImage(fathom::appIcon(size)));
    return icon;
}

}  // namespace

Application::Application(char* programPath)
    : arguments_{programPath, nullptr}, toolkit_(prepared(argumentCount_), arguments_.data()) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setWindowIcon(programIcon());
    if (toolkitTranslator_.load()) QCoreApplication::installTranslator(&toolkitTranslator_);
}

Application::~Application() {
    // The toolkit would wait here for the look-ups of hosts' names, for as long as name servers are silent.
    QObject::disconnect(&toolkit_, &QObject::destroyed, nullptr, nullptr);
}

int Application::run(const platform::Platform& platform) {
    const auto directory = dataDirectory(platform.files);
    if (const auto made = platform.files.createDirectories(directory); !made) {
        platform.log.warning("Tidewatch: " + made.error().message);
    }
    switch (platform.singleInstance.claim(directory)) {
        case platform::InstanceClaim::first:
            break;
        case platform::InstanceClaim::handedOver:
            return EXIT_SUCCESS;
        case platform::InstanceClaim::denied:
            platform.log.warning("Tidewatch: another instance holds " + directory + " and does not answer");
            return EXIT_FAILURE;
    }
    platform.termination.onRequested([] { QCoreApplication::quit(); });
    DesktopComposition composition(platform, [] { QCoreApplication::quit(); });
    auto& delegate = composition.delegate();
    delegate.applicationDidFinishLaunching();
    platform.singleInstance.onReopen([&] { delegate.applicationShouldHandleReopen(); });
    platform.termination.onSessionEnding([&] { delegate.flushAllStores(); });
    platform.termination.onDisplayLost([&] { delegate.applicationWillTerminate(); });
    // Much of what the start allocated is free by now.
    QTimer::singleShot(settlingTime, &toolkit_, [&] { platform.memory.releaseUnused(); });
    const int code = QApplication::exec();
    delegate.applicationWillTerminate();
    platform.termination.onDisplayLost(nullptr);
    return code;
}

}  // namespace tidewatch
