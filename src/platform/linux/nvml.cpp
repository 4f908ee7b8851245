#include "platform/linux/nvml.h"

#include <dlfcn.h>

#include <algorithm>
#include <utility>

namespace tidewatch::platform {

class Nvml::Library final {
public:
    explicit Library(const std::string& path) : handle_(::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
        if (!handle_) return;
        find(initialize_, "nvmlInit_v2");
        find(shutdown_, "nvmlShutdown");
        find(deviceCount_, "nvmlDeviceGetCount_v2");
        find(deviceByIndex_, "nvmlDeviceGetHandleByIndex_v2");
        find(utilizationOf_, "nvmlDeviceGetUtilizationRates");
        isReady_ = initialize_ && shutdown_ && deviceCount_ && deviceByIndex_ && utilizationOf_ &&
                   initialize_() == succeeded;
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() {
        if (isReady_) shutdown_();
        if (handle_) ::dlclose(handle_);
    }

    [[nodiscard]] std::vector<double> utilization() const {
        std::vector<double> figures;
        unsigned count = 0;
        if (!isReady_ || deviceCount_(&count) != succeeded) return figures;
        for (unsigned index = 0; index < count; ++index) {
            Device device{};
            Utilization rates{};
            if (deviceByIndex_(index, &device) != succeeded || utilizationOf_(device, &rates) != succeeded)
                continue;
            figures.push_back(std::min(rates.graphics / 100.0, 1.0));
        }
        return figures;
    }

private:
    // The part of the library's interface that is used, as its documentation describes it.
    static constexpr int succeeded = 0;
    using Device = void*;
    struct Utilization {
        unsigned graphics;  // percent
        unsigned memory;    // percent
    };

    template <class Function>
    void find(Function& function, const char* name) {
        function = reinterpret_cast<Function>(::dlsym(handle_, name));
    }

    void* const handle_;
    bool isReady_ = false;
    int (*initialize_)() = nullptr;
    int (*shutdown_)() = nullptr;
    int (*deviceCount_)(unsigned*) = nullptr;
    int (*deviceByIndex_)(unsigned, Device*) = nullptr;
    int (*utilizationOf_)(Device, Utilization*) = nullptr;
};

Nvml::Nvml(std::string library) : path_(std::move(library)) {}
Nvml::~Nvml() = default;

std::vector<double> Nvml::utilization() {
    if (!std::exchange(isTried_, true)) library_ = std::make_unique<Library>(path_);
    return library_->utilization();
}

}  // namespace tidewatch::platform
