#include "analysis/views/projects_presenter.h"

#include "analysis/views/tier_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

QColor colorOf(const ProjectRow& row) {
    if (!row.project) return tierColor(Tier::uncategorized);
    const auto color = row.project->color();
    return QColor(color.red, color.green, color.blue);
}

ProjectSheet sheet(const ProjectRow& row, Seconds totalDay) {
    ProjectSheet sheet{.id = text(row.id),
                       .title = row.project ? nameText(row.project->name) : "SIN PROYECTO",
                       .tagged = row.project.has_value(),
                       .color = colorOf(row),
                       .note = row.project ? "" : "Tiempo activo sin etiquetar a ningún proyecto.",
                       .time = timeText(row.seconds),
                       .share = shareText(row.seconds, totalDay),
                       .fraction = share(row.seconds, totalDay)};
    for (auto& app : appRows(row.topApps)) sheet.apps.append(app);
    sheet.accessibleText = sheet.title + ", " + sheet.time + ", " + sheet.share;
    return sheet;
}

}  // namespace

ProjectsPresenter::ProjectsPresenter(DashboardModel& model, const ProjectStore& projects,
                                     const DailyStore& days)
    : DashboardTabPresenter(model), projects_(projects), days_(days) {}

void ProjectsPresenter::update() {
    const auto totalDay = days_.seconds(model().selectedDayKey());
    std::vector<ProjectSheet> rows;
    for (const auto& row : model().projectRows()) rows.push_back(sheet(row, totalDay));
    rows_.setRows(rows);
    updateEmptyState();
    Q_EMIT rowsChanged();
}

void ProjectsPresenter::updateEmptyState() {
    emptyTitle_.clear();
    emptyText_.clear();
    if (projects_.projects().empty()) {
        emptyTitle_ = "Sin proyectos todavía";
        emptyText_ = "Créa uno desde el menú ⏰ → Proyecto → Nuevo proyecto…";
    } else if (rows_.rows().empty()) {
        emptyTitle_ = "Aún no etiquetas tiempo a ningún proyecto en este día.";
    }
}

}  // namespace tidewatch
