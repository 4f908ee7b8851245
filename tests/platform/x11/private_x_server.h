#pragma once

#include <xcb/xcb.h>

#include <QProcess>
#include <cstdint>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// An X server for one test alone, which DISPLAY names from then on, and another program's connection to it.
class PrivateXServer final {
public:
    /// Fails the running test if the server does not come up.
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
    void setNumber(xcb_window_t window, xcb_atom_t property, std::uint32_t value) const;
    /// Returns once the server has seen all that was sent.
    void sync() const;

private:
    QProcess server_;
    xcb_connection_t* client_ = nullptr;
    xcb_window_t root_ = XCB_WINDOW_NONE;
};

/// The resident memory of a process, in bytes.
[[nodiscard]] std::int64_t residentMemory(std::int64_t process);

}  // namespace tidewatch::platform
