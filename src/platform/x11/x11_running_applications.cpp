#include "platform/x11/x11_running_applications.h"

#include <algorithm>
#include <utility>

#include "platform/linux/proc_processes.h"
#include "platform/x11/x11_window_identity.h"

namespace tidewatch::platform {

namespace {

struct Atoms {
    explicit Atoms(const X11Connection& connection)
        : clientList(connection.atom("_NET_CLIENT_LIST")),
          protocols(connection.atom("WM_PROTOCOLS")),
          deleteWindow(connection.atom("WM_DELETE_WINDOW")),
          windowType(connection.atom("_NET_WM_WINDOW_TYPE")),
          desktop(connection.atom("_NET_WM_WINDOW_TYPE_DESKTOP")),
          dock(connection.atom("_NET_WM_WINDOW_TYPE_DOCK")) {}

    xcb_atom_t clientList, protocols, deleteWindow, windowType, desktop, dock;
};

bool contains(const std::vector<std::uint32_t>& values, std::uint32_t value) {
    return std::ranges::find(values, value) != values.end();
}

// The windows that a person would close, without those that close with another one.
std::vector<xcb_window_t> closableWindows(const X11Connection& connection, const Atoms& atoms) {
    const auto all = connection.cardinals(connection.root(), atoms.clientList);
    std::vector<xcb_window_t> windows;
    for (const auto window : all) {
        const auto types = connection.cardinals(window, atoms.windowType);
        const auto mainWindow = connection.cardinal(window, XCB_ATOM_WM_TRANSIENT_FOR);
        if (!contains(connection.cardinals(window, atoms.protocols), atoms.deleteWindow) ||
            contains(types, atoms.desktop) || contains(types, atoms.dock) ||
            (mainWindow && contains(all, *mainWindow)))
            continue;
        windows.push_back(window);
    }
    return windows;
}

// A window whose process is unknown is an application by itself.
std::uint64_t handleOf(xcb_window_t window, std::optional<pid_t> owner) {
    constexpr auto beyondProcesses = std::uint64_t{1} << 32;
    return owner ? static_cast<std::uint64_t>(*owner) : beyondProcesses + window;
}

}  // namespace

X11RunningApplications::X11RunningApplications(DesktopEntries& entries, const Applications& applications,
                                               pid_t own, std::function<void()> endOwn)
    : entries_(entries), applications_(applications), own_(own), endOwn_(std::move(endOwn)) {}

std::vector<RunningApplication> X11RunningApplications::list() {
    windows_.clear();
    const X11Connection connection;
    if (!connection.alive()) return {};
    std::vector<RunningApplication> list;
    for (const auto window : closableWindows(connection, Atoms(connection))) {
        const auto owner = connection.processOf(window);
        auto& windows = windows_[handleOf(window, owner)];
        windows.push_back(window);
        if (windows.size() == 1) list.push_back(describe(connection, window, owner));
    }
    return list;
}

RunningApplication X11RunningApplications::describe(const X11Connection& connection, xcb_window_t window,
                                                    std::optional<pid_t> owner) {
    RunningApplication application{
        .handle = handleOf(window, owner),
        .id = registeredApplication(connection, entries_, window, owner).value_or(AppId())};
    const auto info = application.id.empty() ? std::nullopt : applications_.info(application.id);
    application.name = info ? info->name : windowClass(connection, window);
    if (owner) application.processName = processName(*owner);
    return application;
}

void X11RunningApplications::askToClose(const RunningApplication& application) {
    // Closing its windows would not end this program.
    if (application.handle == static_cast<std::uint64_t>(own_)) return endOwn_();
    const auto windows = windows_.find(application.handle);
    if (windows == windows_.end()) return;
    const X11Connection connection;
    if (!connection.alive()) return;
    const Atoms atoms(connection);
    for (const auto window : windows->second) {
        xcb_client_message_event_t request{};
        request.response_type = XCB_CLIENT_MESSAGE;
        request.format = 32;
        request.window = window;
        request.type = atoms.protocols;
        request.data.data32[0] = atoms.deleteWindow;
        request.data.data32[1] = XCB_CURRENT_TIME;
        xcb_send_event(connection.get(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char*>(&request));
    }
    connection.sync();
}

}  // namespace tidewatch::platform
