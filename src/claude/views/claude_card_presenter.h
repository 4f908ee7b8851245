#pragma once

#include <qqmlregistration.h>
#include <QObject>
#include <memory>

#include "base/signal.h"
#include "claude/claude_usage_monitor.h"
#include "claude/views/claude_rows.h"
#include "platform/api/clock.h"
#include "platform/api/main_loop.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// The display values of the sidebar's card about Claude: how much of the plan's limits is used. Main thread
/// only.
class ClaudeCardPresenter final : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString title READ title NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString cost READ cost NOTIFY figuresChanged FINAL)
    Q_PROPERTY(tidewatch::ClaudeLimit session READ session NOTIFY figuresChanged FINAL)
    Q_PROPERTY(tidewatch::ClaudeLimit week READ week NOTIFY figuresChanged FINAL)
    Q_PROPERTY(tidewatch::ClaudeFigure today READ today NOTIFY figuresChanged FINAL)

public:
    /// The limits, whatever the plan. The five hours are shown by the time that has passed.
    static constexpr std::int64_t limit5hTokens = 1'000'000;
    static constexpr std::int64_t limitWeeklyTokens = 8'750'000;

    /// All must outlive it.
    ClaudeCardPresenter(const platform::Clock& clock, platform::MainLoop& mainLoop,
                        ClaudeUsageMonitor& monitor);

    [[nodiscard]] QString title() const { return figures_.title; }
    [[nodiscard]] QString cost() const { return figures_.cost; }
    [[nodiscard]] const ClaudeLimit& session() const { return figures_.session; }
    [[nodiscard]] const ClaudeLimit& week() const { return figures_.week; }
    [[nodiscard]] const ClaudeFigure& today() const { return figures_.today; }

Q_SIGNALS:
    void figuresChanged();

private:
    struct Figures {
        QString title;
        QString cost;
        ClaudeLimit session;
        ClaudeLimit week;
        ClaudeFigure today;
        bool operator==(const Figures&) const = default;
    };

    void update() override;
    void visibilityChanged() override;
    [[nodiscard]] ClaudeLimit sessionOf(const ClaudeSnapshot& snap, Instant now) const;

    const platform::Clock& clock_;
    platform::MainLoop& mainLoop_;
    ClaudeUsageMonitor& monitor_;
    Figures figures_;
    std::unique_ptr<platform::RepeatingTimer> timer_;
    Connection monitorChanged_;
};

}  // namespace tidewatch
