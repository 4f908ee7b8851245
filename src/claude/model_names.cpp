#include "claude/model_names.h"

namespace tidewatch {

std::uint32_t ModelNames::idOf(std::string_view name) {
    const std::lock_guard lock(mutex_);
    if (const auto known = ids_.find(name); known != ids_.end()) return known->second;
    const auto id = static_cast<std::uint32_t>(names_.size());
    names_.push_back(&ids_.emplace(name, id).first->first);
    return id;
}

const std::string& ModelNames::nameOf(std::uint32_t id) const {
    const std::lock_guard lock(mutex_);
    return *names_[id];
}

std::size_t ModelNames::size() const {
    const std::lock_guard lock(mutex_);
    return names_.size();
}

}  // namespace tidewatch
