#include "system/views/sidebar/consumers_presenter.h"

#include <algorithm>

#include "shell/themes/dashboard_style.h"
#include "system/quit_applications.h"
#include "system/views/system_texts.h"
#include "ui/style/qt_color.h"
#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

QString memoryText(double mebibytes) {
    constexpr double bytesPerMebibyte = 1048576;
    return sizeText(static_cast<std::int64_t>(mebibytes * bytesPerMebibyte));
}

QString loadText(double percent) {
    return wholeNumber(percent) + "%";
}

}  // namespace

ConsumersPresenter::ConsumersPresenter(const Frame& frame, const QString& title, const Header& header,
                                       const QString& caption, platform::RunningApplications& running)
    : DetailPresenter(frame, title, header), caption_(caption), running_(running) {}

void ConsumersPresenter::visibilityChanged() {
    change(this, notice_, QString(), &ConsumersPresenter::noticeChanged);
    DetailPresenter::visibilityChanged();
}

void ConsumersPresenter::show(const Figure& figure, const std::vector<SystemFigure>& parts,
                              const std::vector<SystemConsumer>& consumers) {
    parts_.setRows(parts);
    consumers_.setRows(consumers);
    change(this, figure_, figure, &ConsumersPresenter::figureChanged);
}

void ConsumersPresenter::quit(const QString& id) {
    const auto row = std::ranges::find(consumers_.rows(), id, &SystemConsumer::id);
    if (row == consumers_.rows().end()) return;
    const bool isAsked = quitApplications(running_, row->process);
    change(this, notice_, isAsked ? QString() : row->name + " no tiene ventanas que cerrar.",
           &ConsumersPresenter::noticeChanged);
}

MemoryDetailPresenter::MemoryDetailPresenter(const Frame& frame, platform::RunningApplications& running)
    : ConsumersPresenter(frame, "Memoria",
                         {.symbol = "memorychip", .color = toQColor(DashboardStyle::tierNeutral)}, "usada",
                         running) {}

void MemoryDetailPresenter::update() {
    const auto& now = snap();
    show({.text = gigabytes(now.ramUsed), .fraction = now.ramUsedFraction()},
         {{.id = "Activa", .value = gigabytes(now.ramActive)},
          {.id = "Wired", .value = gigabytes(now.ramWired)},
          {.id = "Comprimida", .value = gigabytes(now.ramCompressed)},
          {.id = "Libre", .value = gigabytes(now.ramFree)},
          {.id = "Swap", .value = gigabytes(now.swapUsed)},
          {.id = "Total", .value = gigabytes(now.ramTotal)}},
         consumerRows(now.topRam, memoryText));
}

CpuDetailPresenter::CpuDetailPresenter(const Frame& frame, platform::RunningApplications& running)
    : ConsumersPresenter(frame, "CPU", {.symbol = "cpu", .color = cpuColor(0)}, "uso", running) {}

void CpuDetailPresenter::update() {
    const auto& now = snap();
    setHeader({.symbol = "cpu", .color = cpuColor(now.cpuTotal)});
    show({.text = wholePercent(now.cpuTotal), .fraction = now.cpuTotal},
         {{.id = "Disponible", .value = wholePercent(1 - now.cpuTotal)},
          {.id = "Usuario", .value = wholePercent(now.cpuUser)},
          {.id = "Sistema", .value = wholePercent(now.cpuSystem)}},
         consumerRows(now.topCpu, loadText));
}

}  // namespace tidewatch
