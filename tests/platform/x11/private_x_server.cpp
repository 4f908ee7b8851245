#include "tests/platform/x11/private_x_server.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>

#include "platform/x11/x11_connection.h"

namespace tidewatch::platform {

namespace {

constexpr int startTimeOut = 60'000;

}  // namespace

PrivateXServer::PrivateXServer() {
    // The server chooses a free display number and prints it.
    server_.setProcessChannelMode(QProcess::SeparateChannels);
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset"});
    while (!server_.canReadLine() && server_.waitForReadyRead(startTimeOut)) {
    }
    const auto number = server_.readLine().trimmed();
    EXPECT_FALSE(number.isEmpty()) << server_.readAllStandardError().toStdString();
    ::setenv("DISPLAY", (":" + number).constData(), 1);
    client_ = xcb_connect(nullptr, nullptr);
    EXPECT_EQ(xcb_connection_has_error(client_), 0);
    root_ = xcb_setup_roots_iterator(xcb_get_setup(client_)).data->root;
}

PrivateXServer::~PrivateXServer() {
    xcb_disconnect(client_);
    server_.terminate();
    server_.waitForFinished();
}

std::int64_t PrivateXServer::memory() const {
    return residentMemory(server_.processId());
}

xcb_atom_t PrivateXServer::atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(client_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(client_, cookie, nullptr));
    return reply->atom;
}

xcb_window_t PrivateXServer::openWindow(const std::string& windowClass) const {
    const auto window = xcb_generate_id(client_);
    xcb_create_window(client_, XCB_COPY_FROM_PARENT, window, root_, 10, 10, 100, 80, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    setClass(window, windowClass);
    sync();
    return window;
}

void PrivateXServer::setClass(xcb_window_t window, const std::string& windowClass) const {
    const auto names = "instance" + std::string(1, '\0') + windowClass + std::string(1, '\0');
    xcb_change_property(client_, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(names.size()), names.data());
}

void PrivateXServer::refuseFocus(xcb_window_t window) const {
    const std::array<std::uint32_t, 9> inputIsFalse = {1, 0};
    xcb_change_property(client_, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 32,
                        inputIsFalse.size(), inputIsFalse.data());
}

void PrivateXServer::setNumber(xcb_window_t window, xcb_atom_t property, std::uint32_t value) const {
    xcb_change_property(client_, XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_CARDINAL, 32, 1, &value);
}

void PrivateXServer::sync() const {
    const XcbReply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(client_, xcb_get_input_focus(client_), nullptr));
    EXPECT_TRUE(reply);
}

std::int64_t residentMemory(std::int64_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/statm");
    std::int64_t whole = 0;
    std::int64_t resident = 0;
    file >> whole >> resident;
    return resident * ::sysconf(_SC_PAGESIZE);
}

}  // namespace tidewatch::platform
