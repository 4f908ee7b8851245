#pragma once

#include <QProcessEnvironment>
#include <memory>

namespace tidewatch::platform {

/// What the process inherits, put right for the toolkit: one to be made before the toolkit's application
/// object and to outlive it. Main thread only.
///
/// The program runs as an X11 client, also in a Wayland session, since there alone it can place its clock and
/// see the application in front. No variable chooses what code the toolkit loads: among its plugins are some
/// that open a port. Whoever else the toolkit asks in the session is made sure not to keep it waiting.
class ProcessEnvironment final {
public:
    ProcessEnvironment();
    ~ProcessEnvironment();

    /// Whether the X server that DISPLAY names answers. Without one the toolkit would abort the process; why
    /// stands in the log.
    [[nodiscard]] bool hasDisplay() const;

    /// What the process was started with: for other programs that it starts.
    [[nodiscard]] const QProcessEnvironment& inherited() const;

    /// The session bus's address for use in this process.
    [[nodiscard]] QString sessionBusAddress() const;

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace tidewatch::platform
