#include "platform/linux/termination_signals.h"

#include <signal.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cstdint>

namespace tidewatch::platform {

namespace {

/// A signal handler has no other way to find what it is to wake.
volatile sig_atomic_t wakeDescriptor = -1;

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

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> asked) {
    wakeDescriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    notifier_ = std::make_unique<QSocketNotifier>(static_cast<int>(wakeDescriptor), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [asked = std::move(asked)](QSocketDescriptor descriptor) {
                         std::uint64_t count = 0;
                         [[maybe_unused]] const auto taken = read(descriptor, &count, sizeof count);
                         asked();
                     });
    setAction(wake);
}

TerminationSignals::~TerminationSignals() {
    setAction(SIG_DFL);
    notifier_.reset();
    close(static_cast<int>(wakeDescriptor));
    wakeDescriptor = -1;
}

}  // namespace tidewatch::platform
