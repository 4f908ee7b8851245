#pragma once

#include <xcb/xcb.h>

#include <QProcess>
#include <cstdint>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// A private X server for one test, set in DISPLAY, and another client's connection to it.
class PrivateXServer final {
public:
    /// Fails the current test if the server does not start.
    PrivateXServer();
    ~PrivateXServer();
    PrivateXServer(const PrivateXServer&) = delete;
    PrivateXServer& operator=(const PrivateXServer&) = delete;

    /// The resident memory of the server, in bytes.
    [[nodiscard]] std::int64_t memory() const;

    // The other program
    [[nodiscard]] xcb_connection_t* client() const { return client_; }
    [[nodiscard]] xcb_window_t root() const { return root_; }
    [[nodiscard]] xcb_atom_t atom(std::string_view name) const;
    [[nodiscard]] xcb_window_t openWindow(const std::string& windowClass) const;
    void setClass(xcb_window_t window, const std::string& windowClass) const;
    /// As the hints of a window say that never wants the keyboard.
    void refuseFocus(xcb_window_t window) const;
    void setNumber(xcb_window_t window, xcb_atom_t property, std::uint32_t value) const;
    /// Waits until the server has processed all requests.
    void sync() const;

private:
    QProcess server_;
    xcb_connection_t* client_ = nullptr;
    xcb_window_t root_ = XCB_WINDOW_NONE;
};

/// The resident memory of a process, in bytes.
[[nodiscard]] std::int64_t residentMemory(std::int64_t process);

}  // namespace tidewatch::platform
