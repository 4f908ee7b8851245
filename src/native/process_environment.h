#pragma once

#include <QProcessEnvironment>
#include <memory>

namespace tidewatch::platform {

/// Prepares the environment variables that the toolkit reads. Must be created before the toolkit's
/// application object and outlive it. Main thread only.
///
/// The program runs as an X11 client, also in a Wayland session, where alone it can position its clock and
/// see the application in front. Variables that make the toolkit load code are removed: some of its plugins
/// open a port. Session services that do not respond cannot block it.
class ProcessEnvironment final {
public:
    ProcessEnvironment();
    ~ProcessEnvironment();

    /// Whether the X server named by DISPLAY responds; if not, the reason has been logged. Without one the
    /// toolkit would abort the process.
    [[nodiscard]] bool hasDisplay() const;

    /// The environment that the process was started with, for programs that it starts itself.
    [[nodiscard]] const QProcessEnvironment& inherited() const;

    /// The session bus's address for use in this process.
    [[nodiscard]] QString sessionBusAddress() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace tidewatch::platform
