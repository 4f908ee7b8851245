#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <memory>

#include "base/signal.h"
#include "claude/claude_usage_monitor.h"
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
    Q_PROPERTY(QString sessionTitle READ sessionTitle CONSTANT FINAL)
    Q_PROPERTY(QString sessionPercent READ sessionPercent NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double sessionFraction READ sessionFraction NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QColor sessionColor READ sessionColor NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString sessionEnd READ sessionEnd NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString sessionReset READ sessionReset NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString weekTitle READ weekTitle CONSTANT FINAL)
    Q_PROPERTY(QString weekFigures READ weekFigures NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString weekPercent READ weekPercent NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double weekFraction READ weekFraction NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QColor weekColor READ weekColor NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString weekReset READ weekReset NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString todayTitle READ todayTitle CONSTANT FINAL)
    Q_PROPERTY(QString todayConversations READ todayConversations NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString todayTokens READ todayTokens NOTIFY figuresChanged FINAL)

public:
    /// The limits, whatever the plan. The five hours are shown by the time that has passed.
    static constexpr std::int64_t limit5hTokens = 1'000'000;
    static constexpr std::int64_t limitWeeklyTokens = 8'750'000;

    /// All must outlive it.
    ClaudeCardPresenter(const platform::Clock& clock, platform::MainLoop& mainLoop,
                        ClaudeUsageMonitor& monitor);

    [[nodiscard]] QString title() const { return title_; }
    [[nodiscard]] QString cost() const { return cost_; }
    [[nodiscard]] QString sessionTitle() const { return "Límite 5 h"; }
    [[nodiscard]] QString sessionPercent() const { return sessionPercent_; }
    [[nodiscard]] double sessionFraction() const { return sessionFraction_; }
    [[nodiscard]] QColor sessionColor() const { return sessionColor_; }
    [[nodiscard]] QString sessionEnd() const { return sessionEnd_; }
    [[nodiscard]] QString sessionReset() const { return sessionReset_; }
    [[nodiscard]] QString weekTitle() const { return "Semana"; }
    [[nodiscard]] QString weekFigures() const { return weekFigures_; }
    [[nodiscard]] QString weekPercent() const { return weekPercent_; }
    [[nodiscard]] double weekFraction() const { return weekFraction_; }
    [[nodiscard]] QColor weekColor() const { return weekColor_; }
    [[nodiscard]] QString weekReset() const { return weekReset_; }
    [[nodiscard]] QString todayTitle() const { return "Hoy"; }
    [[nodiscard]] QString todayConversations() const { return todayConversations_; }
    [[nodiscard]] QString todayTokens() const { return todayTokens_; }

Q_SIGNALS:
    void figuresChanged();

private:
    void update() override;
    void visibilityChanged() override;
    void updateSession(const ClaudeSnapshot& snap, Instant now);
    void updateWeek(const ClaudeSnapshot& snap, Instant now);

    const platform::Clock& clock_;
    platform::MainLoop& mainLoop_;
    ClaudeUsageMonitor& monitor_;
    QString title_;
    QString cost_;
    QString sessionPercent_;
    double sessionFraction_ = 0;
    QColor sessionColor_;
    QString sessionEnd_;
    QString sessionReset_;
    QString weekFigures_;
    QString weekPercent_;
    double weekFraction_ = 0;
    QColor weekColor_;
    QString weekReset_;
    QString todayConversations_;
    QString todayTokens_;
    std::unique_ptr<platform::RepeatingTimer> timer_;
    Connection monitorChanged_;
};

}  // namespace tidewatch
