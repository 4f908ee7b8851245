#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/program.h"
#include "app/services.h"
#include "platform/fake/fake_machine.h"
#include "shell/surfaces.h"

namespace tidewatch {

/// The events on the fake screen, in order, one or two words each.
using ScreenLog = std::vector<std::string>;

class FakeFloatingWindow final : public FloatingWindow {
public:
    /// `name` is the one in the log.
    FakeFloatingWindow(PanelSize size, ScreenLog& log, std::string name = "panel")
        : size_(size), log_(log), name_(std::move(name)) {}

    [[nodiscard]] PanelSize panelSize() const override { return size_; }
    [[nodiscard]] platform::Point origin() const override { return origin_; }
    void setOrigin(platform::Point origin) override { origin_ = origin; }
    void resize(PanelSize size) override {
        size_ = size;
        log_.push_back("resize");
    }
    void fitToScreens() override { log_.push_back("fit"); }
    void orderFrontRegardless() override {
        visible_ = true;
        log_.push_back("show " + name_);
    }
    void orderOut() override {
        visible_ = false;
        log_.push_back("hide " + name_);
    }
    [[nodiscard]] bool isVisible() const override { return visible_; }
    void setGestures(Gestures gestures) override { gestures_ = std::move(gestures); }

    [[nodiscard]] const Gestures& gestures() const { return gestures_; }

private:
    PanelSize size_;
    ScreenLog& log_;
    const std::string name_;
    platform::Point origin_{7, 7};
    bool visible_ = false;
    Gestures gestures_;
};

class FakeStatusItem final : public StatusItem {
public:
    void setTitle(const StatusTitle& title) override {
        title_ = title;
        ++titlesSet_;
        if (titled_) titled_();
    }
    void onClick(std::function<void(Click)> clicked) override { clicked_ = std::move(clicked); }
    [[nodiscard]] bool isShown() const override { return shown_; }
    void showMessage(const std::string& title, const std::string& body) override {
        messages_.push_back(title + ": " + body);
    }
    void offerMenu(std::function<MenuRows()>) override {}
    void popUpMenu(const MenuRows& rows) override { menus_.push_back(rows); }

    void click(Click click) const { clicked_(click); }
    void setShown(bool shown) { shown_ = shown; }
    void onTitle(std::function<void()> titled) { titled_ = std::move(titled); }
    [[nodiscard]] const StatusTitle& title() const { return title_; }
    [[nodiscard]] int titlesSet() const { return titlesSet_; }
    [[nodiscard]] const std::vector<MenuRows>& menus() const { return menus_; }
    [[nodiscard]] const std::vector<std::string>& messages() const { return messages_; }

private:
    StatusTitle title_;
    int titlesSet_ = 0;
    bool shown_ = true;
    std::function<void()> titled_;
    std::function<void(Click)> clicked_;
    std::vector<MenuRows> menus_;
    std::vector<std::string> messages_;
};

class FakeStatisticsWindow final : public StatisticsWindow {
public:
    void showWindow() override {
        visible_ = true;
        ++showings_;
    }
    void close() override { visible_ = false; }
    [[nodiscard]] bool isVisible() const override { return visible_; }

    /// How often it was shown, even if already visible.
    [[nodiscard]] int showings() const { return showings_; }

private:
    bool visible_ = false;
    int showings_ = 0;
};

class FakeSurfaces final : public Surfaces, private Dialogs {
public:
    void registerFonts() override { log_.push_back("fonts"); }
    [[nodiscard]] std::unique_ptr<FloatingWindow> makeClockWindow(PanelSize size) override {
        log_.push_back("panel");
        auto window = std::make_unique<FakeFloatingWindow>(size, log_);
        panel_ = window.get();
        return window;
    }
    [[nodiscard]] std::unique_ptr<FloatingWindow> makeWidgetWindow(WidgetKind kind, PanelSize size) override {
        const std::string name(rawValue(kind));
        log_.push_back("make " + name);
        if (widgetMade_) widgetMade_(kind);
        auto window = std::make_unique<FakeFloatingWindow>(size, log_, name);
        widgets_[kind] = window.get();
        return window;
    }
    [[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem() override {
        log_.push_back("status item");
        auto item = std::make_unique<FakeStatusItem>();
        statusItem_ = item.get();
        return item;
    }
    [[nodiscard]] Dialogs& dialogs() override { return *this; }
    void popUpMenu(const MenuRows& rows, platform::Point) override { poppedUp_ = rows; }
    void showHint(const std::string& text) override { hints_.push_back(text); }

    [[nodiscard]] FakeFloatingWindow& panel() { return *panel_; }
    /// The window last made for the widget; dangling once the widget is hidden.
    [[nodiscard]] FakeFloatingWindow& widget(WidgetKind kind) { return *widgets_.at(kind); }
    void onWidgetMade(std::function<void(WidgetKind)> made) { widgetMade_ = std::move(made); }
    void clearLog() { log_.clear(); }
    [[nodiscard]] FakeStatusItem& statusItem() { return *statusItem_; }
    [[nodiscard]] const ScreenLog& log() const { return log_; }
    [[nodiscard]] const std::vector<std::string>& hints() const { return hints_; }
    [[nodiscard]] const std::vector<std::string>& warnings() const { return warnings_; }

    /// The last question, and the user's answers to it.
    [[nodiscard]] const TextPrompt& prompt() const { return prompt_; }
    [[nodiscard]] const Confirmation& question() const { return question_; }
    [[nodiscard]] int questionsAsked() const { return asked_; }
    void answer(const std::string& text) const { answered_(text); }
    void agree() const { agreed_(); }
    [[nodiscard]] const SaveRequest& saveRequest() const { return saveRequest_; }
    void place(const std::string& path) const { placed_(path); }

private:
    void warn(const std::string& title, const std::string& text) override {
        warnings_.push_back(title + ": " + text);
    }
    void ask(const TextPrompt& prompt, std::function<void(std::string)> accepted) override {
        prompt_ = prompt;
        answered_ = std::move(accepted);
        ++asked_;
    }
    void confirm(const Confirmation& question, std::function<void()> accepted) override {
        question_ = question;
        agreed_ = std::move(accepted);
        ++asked_;
    }
    void chooseSaveLocation(const SaveRequest& request,
                            std::function<void(std::string path)> accepted) override {
        saveRequest_ = request;
        placed_ = std::move(accepted);
        ++asked_;
    }

    ScreenLog log_;
    FakeFloatingWindow* panel_ = nullptr;
    std::map<WidgetKind, FakeFloatingWindow*> widgets_;
    std::function<void(WidgetKind)> widgetMade_;
    FakeStatusItem* statusItem_ = nullptr;
    MenuRows poppedUp_;
    std::vector<std::string> hints_;
    std::vector<std::string> warnings_;
    TextPrompt prompt_;
    Confirmation question_;
    int asked_ = 0;
    std::function<void(std::string)> answered_;
    std::function<void()> agreed_;
    SaveRequest saveRequest_;
    std::function<void(std::string)> placed_;
};

/// The whole program without the toolkit, on a fake machine: 2026-01-15 09:00 UTC, an editor in front, the
/// user welcomed long ago.
class ProgramWorld : public testing::Test {
protected:
    ProgramWorld();

    /// The current menu.
    [[nodiscard]] MenuRows menu();
    /// Triggers the first row with this title, including submenus; false if there is none.
    bool choose(const std::string& title);

    /// Builds the program and lets it launch.
    void launch();

    /// The program's services, which must outlive it.
    [[nodiscard]] virtual const platform::Platform& platform() { return machine_.platform; }
    void runFor(std::chrono::milliseconds duration) { machine_.mainLoop.runFor(duration); }
    [[nodiscard]] static bool chooseIn(const MenuRows& rows, const std::string& title);
    [[nodiscard]] std::string file(const std::string& name) const;

    platform::FakeMachine machine_;
    FakeSurfaces surfaces_;
    FakeStatisticsWindow statistics_;
    bool reportsSucceed_ = false;
    std::vector<std::string> reports_;  ///< the requested paths of monthly reports
    bool terminated_ = false;

    struct Run;
    std::unique_ptr<Run> program_;
};

/// One run of the program, as the composition root builds it.
struct ProgramWorld::Run {
    explicit Run(ProgramWorld& world);

    Services services;
    Program program;
    ThemeController& theme = services.theme;
    AppDelegate& delegate = program.delegate();
};

}  // namespace tidewatch
