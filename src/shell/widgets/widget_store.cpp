#include "shell/widgets/widget_store.h"

#include <utility>

namespace tidewatch {

WidgetStore::WidgetStore(platform::FileSystem& files, platform::Log& log)
    : file_(files, log, "widgets.json") {
    states_ = file_.read(parseWidgetStates).value_or(WidgetStates());
}

WidgetState WidgetStore::state(WidgetKind kind) const {
    const auto found = states_.find(kind);
    return found == states_.end() ? WidgetState() : found->second;
}

void WidgetStore::update(WidgetKind kind, const std::function<void(WidgetState&)>& change) {
    change(states_[kind]);
    auto content = serializeWidgetStates(states_);
    if (content == written_) return;
    if (file_.write(content)) written_ = std::move(content);
}

}  // namespace tidewatch
