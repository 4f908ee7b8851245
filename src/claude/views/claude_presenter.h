#pragma once

#include <qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QStringList>
#include <memory>

#include "base/signal.h"
#include "claude/claude_settings.h"
#include "claude/claude_usage_monitor.h"
#include "claude/views/claude_rows.h"
#include "platform/api/clock.h"
#include "platform/api/main_loop.h"
#include "ui/models/row_list.h"
#include "ui/models/tab_presenter.h"

namespace tidewatch {

/// The period that the tab "Claude" shows.
enum class ClaudeRange { today, week, month };

/// The display values of the tab "Claude". Main thread only.
class ClaudePresenter final : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString updated READ updated NOTIFY updatedChanged FINAL)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY scanningChanged FINAL)
    Q_PROPERTY(QString scanning READ scanning CONSTANT FINAL)
    Q_PROPERTY(QList<QString> ranges READ ranges CONSTANT FINAL)
    Q_PROPERTY(int rangeIndex READ rangeIndex NOTIFY figuresChanged FINAL)
    // Instead of the figures.
    Q_PROPERTY(bool hasNoLogs READ hasNoLogs NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString noLogsTitle READ noLogsTitle CONSTANT FINAL)
    Q_PROPERTY(QString noLogsText READ noLogsText CONSTANT FINAL)
    // Above the figures; may be empty.
    Q_PROPERTY(QString note READ note NOTIFY figuresChanged FINAL)
    // What the plan is worth.
    Q_PROPERTY(QString valueTitle READ valueTitle CONSTANT FINAL)
    Q_PROPERTY(QString extracted READ extracted NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString ofSubscription READ ofSubscription NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QColor valueColor READ valueColor NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString efficiencyTitle READ efficiencyTitle CONSTANT FINAL)
    Q_PROPERTY(QString efficiency READ efficiency NOTIFY figuresChanged FINAL)
    Q_PROPERTY(double efficiencyFraction READ efficiencyFraction NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString usedWindows READ usedWindows NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString possibleWindows READ possibleWindows NOTIFY figuresChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* sessions READ sessions CONSTANT FINAL)
    Q_PROPERTY(QString sessionNote READ sessionNote CONSTANT FINAL)
    // Tokens of the period.
    Q_PROPERTY(QString tokensTitle READ tokensTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* tokens READ tokens CONSTANT FINAL)
    Q_PROPERTY(QString conversations READ conversations NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString totalTitle READ totalTitle CONSTANT FINAL)
    Q_PROPERTY(QString total READ total NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString cost READ cost NOTIFY figuresChanged FINAL)
    // The price of the plan.
    Q_PROPERTY(QString planTitle READ planTitle CONSTANT FINAL)
    Q_PROPERTY(QString planNote READ planNote CONSTANT FINAL)
    Q_PROPERTY(QString subscription READ subscription NOTIFY figuresChanged FINAL)
    Q_PROPERTY(bool editingBudget READ editingBudget NOTIFY editingChanged FINAL)
    Q_PROPERTY(QString budgetText READ budgetText WRITE setBudgetText NOTIFY budgetTextChanged FINAL)
    Q_PROPERTY(QString budgetPlaceholder READ budgetPlaceholder CONSTANT FINAL)
    Q_PROPERTY(QString editTitle READ editTitle CONSTANT FINAL)
    Q_PROPERTY(QString saveTitle READ saveTitle CONSTANT FINAL)
    // Models of the period, and months.
    Q_PROPERTY(QString modelsTitle READ modelsTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* models READ models CONSTANT FINAL)
    Q_PROPERTY(bool hasModels READ hasModels NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString noModels READ noModels CONSTANT FINAL)
    Q_PROPERTY(QString historyTitle READ historyTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* months READ months CONSTANT FINAL)
    Q_PROPERTY(bool hasHistory READ hasHistory NOTIFY figuresChanged FINAL)
    Q_PROPERTY(QString noHistory READ noHistory CONSTANT FINAL)

public:
    /// All of it must outlive the presenter.
    struct Sources {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        ClaudeUsageMonitor& monitor;
        ClaudeSettings& settings;
    };

    explicit ClaudePresenter(const Sources& sources);

    [[nodiscard]] QString title() const { return "Claude Code"; }
    [[nodiscard]] QString updated() const { return updated_; }
    [[nodiscard]] bool isScanning() const { return isScanning_; }
    [[nodiscard]] QString scanning() const { return "Leyendo registros…"; }
    [[nodiscard]] QStringList ranges() const { return {"Hoy", "Semana", "Mes"}; }
    [[nodiscard]] int rangeIndex() const { return static_cast<int>(range_); }
    [[nodiscard]] bool hasNoLogs() const { return hasNoLogs_; }
    [[nodiscard]] QString noLogsTitle() const { return "Aún no hay registros de Claude Code"; }
    [[nodiscard]] QString noLogsText() const {
        return "Cuando uses Claude Code en este equipo, aquí verás tokens, sesiones y lo que extraes de tu "
               "plan.";
    }
    [[nodiscard]] QString note() const { return note_; }
    [[nodiscard]] QString valueTitle() const { return "💎 VALOR EXTRAÍDO DEL PLAN"; }
    [[nodiscard]] QString extracted() const { return extracted_; }
    [[nodiscard]] QString ofSubscription() const { return "de " + subscription_; }
    [[nodiscard]] QColor valueColor() const { return valueColor_; }
    [[nodiscard]] QString efficiencyTitle() const { return "Eficiencia del mes"; }
    [[nodiscard]] QString efficiency() const { return efficiency_; }
    [[nodiscard]] double efficiencyFraction() const { return efficiencyFraction_; }
    [[nodiscard]] QString usedWindows() const { return usedWindows_; }
    [[nodiscard]] QString possibleWindows() const { return possibleWindows_; }
    [[nodiscard]] RowListModel* sessions() { return &sessions_; }
    [[nodiscard]] QString sessionNote() const {
        return "Una sesión = bloque de 5h con actividad. Intensas = >50K tokens output.";
    }
    [[nodiscard]] QString tokensTitle() const { return "⚡ TOKENS"; }
    [[nodiscard]] RowListModel* tokens() { return &tokens_; }
    [[nodiscard]] QString conversations() const { return conversations_; }
    [[nodiscard]] QString totalTitle() const { return "Total"; }
    [[nodiscard]] QString total() const { return total_; }
    [[nodiscard]] QString cost() const { return cost_; }
    [[nodiscard]] QString planTitle() const { return "💳 MI PLAN CLAUDE MAX (USD/mes)"; }
    [[nodiscard]] QString planNote() const {
        return "Lo que pagas realmente. Se usa para calcular cuánto extraes de cada sesión.";
    }
    [[nodiscard]] QString subscription() const { return subscription_; }
    [[nodiscard]] bool editingBudget() const { return editingBudget_; }
    [[nodiscard]] QString budgetText() const { return budgetText_; }
    void setBudgetText(const QString& text);
    [[nodiscard]] QString budgetPlaceholder() const { return "100"; }
    [[nodiscard]] QString editTitle() const { return "Editar"; }
    [[nodiscard]] QString saveTitle() const { return "Guardar"; }
    [[nodiscard]] QString modelsTitle() const { return "🤖 POR MODELO"; }
    [[nodiscard]] RowListModel* models() { return &models_; }
    [[nodiscard]] bool hasModels() const { return models_.rowCount() > 0; }
    [[nodiscard]] QString noModels() const { return "Sin datos para este período"; }
    [[nodiscard]] QString historyTitle() const { return "📅 HISTORIAL DE MESES"; }
    [[nodiscard]] RowListModel* months() { return &months_; }
    [[nodiscard]] bool hasHistory() const { return months_.rowCount() > 0; }
    [[nodiscard]] QString noHistory() const { return "Calculando…"; }

    /// An index outside ranges() has no effect.
    Q_INVOKABLE void selectRange(int index);

    /// Starts editing, with the present price.
    Q_INVOKABLE void editBudget();
    /// Ends editing. The text becomes the plan's price if all of it is a number above 0.
    Q_INVOKABLE void saveBudget();
    Q_INVOKABLE void cancelBudget();

Q_SIGNALS:
    void updatedChanged();
    void scanningChanged();
    void figuresChanged();
    void editingChanged();
    void budgetTextChanged();

private:
    void update() override;
    void visibilityChanged() override;
    void updateTime();
    void updateValue(const ClaudeSnapshot& snap);
    void updatePeriod(const ClaudeUsagePeriod& period);
    void updateMonths();
    void setEditing(bool editing);
    [[nodiscard]] const ClaudeUsagePeriod& period() const;

    Sources sources_;
    ClaudeRange range_ = ClaudeRange::month;
    QString updated_;
    bool isScanning_ = false;
    bool hasNoLogs_ = false;
    QString note_;
    QString extracted_;
    QString subscription_;
    QColor valueColor_;
    QString efficiency_;
    double efficiencyFraction_ = 0;
    QString usedWindows_;
    QString possibleWindows_;
    RowList<ClaudeFigure> sessions_;
    RowList<ClaudeFigure> tokens_;
    QString conversations_;
    QString total_;
    QString cost_;
    bool editingBudget_ = false;
    QString budgetText_;
    RowList<ClaudeBar> models_;
    RowList<ClaudeBar> months_;
    std::unique_ptr<platform::RepeatingTimer> timer_;
    Connection monitorChanged_;
};

}  // namespace tidewatch
