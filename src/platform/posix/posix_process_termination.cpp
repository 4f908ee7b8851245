#include "platform/posix/posix_process_termination.h"

#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace tidewatch::platform {

namespace {

// Signal and exit handlers can only reach their target through static state.
volatile sig_atomic_t wakeDescriptor = -1;
std::function<void()>& displayLost() {
    static std::function<void()> callback;
    return callback;
}

void wake(int) {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(wakeDescriptor, &one, sizeof one);
}

void setAction(void (*action)(int)) {
    struct sigaction change {};
    change.sa_handler = action;
    change.sa_flags = SA_RESTART;
    sigemptyset(&change.sa_mask);
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaction(number, &change, nullptr);
}

void exiting() {
    if (const auto lost = std::exchange(displayLost(), nullptr)) lost();
}

}  // namespace

PosixProcessTermination::PosixProcessTermination(std::function<void()> atTheEnd)
    : atTheEnd_(std::move(atTheEnd)) {
    displayLost() = nullptr;
}

PosixProcessTermination::~PosixProcessTermination() {
    displayLost() = nullptr;
    if (!notifier_) return;
    setAction(SIG_DFL);
    notifier_.reset();
    close(static_cast<int>(wakeDescriptor));
    wakeDescriptor = -1;
}

void PosixProcessTermination::onRequested(std::function<void()> requested) {
    wakeDescriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    notifier_ = std::make_unique<QSocketNotifier>(static_cast<int>(wakeDescriptor), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [requested = std::move(requested)](QSocketDescriptor descriptor) {
                         std::uint64_t count = 0;
                         [[maybe_unused]] const auto taken = read(descriptor, &count, sizeof count);
                         requested();
                     });
    setAction(wake);
}

void PosixProcessTermination::onSessionEnding(std::function<void()> saving) {
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, qGuiApp,
        [saving = std::move(saving)](QSessionManager& manager) {
            // Starting with the session is the user's choice in the menu, not the session manager's.
            manager.setRestartHint(QSessionManager::RestartNever);
            saving();
        },
        Qt::DirectConnection);
}

void PosixProcessTermination::onDisplayLost(std::function<void()> lost) {
    displayLost() = lost ? [this, lost = std::move(lost)] {
        lost();
        atTheEnd_();
    } : std::function<void()>();
    // The toolkit calls exit() when it loses its connection, deep inside its event loop. Registered this
    // late, the handler runs before the objects used by `lost` are destroyed.
    if (displayLost()) std::atexit(exiting);
}

}  // namespace tidewatch::platform
