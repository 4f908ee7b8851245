#pragma once

#include <optional>
#include <utility>

#include "platform/api/window_system.h"

namespace tidewatch::platform {

/// A desktop without a compositor, until a test starts one.
class FakeWindowSystem final : public WindowSystem {
public:
    void prepareFloating(WindowHandle) override { ++prepared_; }
    void joinAllWorkspaces(WindowHandle) override { ++joinedWorkspaces_; }
    [[nodiscard]] bool isCompositing() const override { return compositing_; }
    Connection onCompositingChanged(std::function<void()> changed) override {
        return compositingChanged_.connect(std::move(changed));
    }
    void setInputRegion(WindowHandle, Rectangle region) override { inputRegion_ = region; }
    Connection onOcclusionChanged(WindowHandle, std::function<void(bool covered)> changed) override {
        return covered_.connect(std::move(changed));
    }
    void requestFrame(WindowHandle) override {}
    [[nodiscard]] FrameMargins frameMargins(WindowHandle) override { return margins_; }
    Connection onFrameReported(WindowHandle, std::function<void()> changed) override {
        return frameReported_.connect(std::move(changed));
    }
    void setMaximizable(WindowHandle, bool maximizable) override { maximizable_ = maximizable; }
    void setFrameVariant(WindowHandle, FrameVariant shade) override { shade_ = shade; }
    void activate(WindowHandle) override { ++activated_; }

    void setFrameMargins(FrameMargins margins) { margins_ = margins; }
    void reportFrame(FrameMargins margins) {
        margins_ = margins;
        frameReported_.emit();
    }
    [[nodiscard]] std::optional<FrameVariant> frameVariant() const { return shade_; }
    [[nodiscard]] bool maximizable() const { return maximizable_; }
    /// How often a window was activated.
    [[nodiscard]] int activated() const { return activated_; }

    void setCompositing(bool compositing) {
        compositing_ = compositing;
        compositingChanged_.emit();
    }
    void cover(bool covered) { covered_.emit(covered); }

    /// How often a window was prepared for being shown.
    [[nodiscard]] int prepared() const { return prepared_; }
    /// How often a window was put on all workspaces.
    [[nodiscard]] int joinedWorkspaces() const { return joinedWorkspaces_; }
    [[nodiscard]] Rectangle inputRegion() const { return inputRegion_; }

private:
    bool compositing_ = false;
    int prepared_ = 0;
    int joinedWorkspaces_ = 0;
    Rectangle inputRegion_;
    FrameMargins margins_;
    bool maximizable_ = true;
    std::optional<FrameVariant> shade_;
    int activated_ = 0;
    Signal<> compositingChanged_;
    Signal<bool> covered_;
    Signal<> frameReported_;
};

}  // namespace tidewatch::platform
