#pragma once

#include <memory>
#include <string>
#include <vector>

namespace tidewatch::platform {

/// The management library of NVIDIA's driver, loaded at the first question. May take seconds. Not
/// thread-safe.
class Nvml final {
public:
    /// `library` as for dlopen().
    explicit Nvml(std::string library = "libnvidia-ml.so.1");
    ~Nvml();
    Nvml(const Nvml&) = delete;
    Nvml& operator=(const Nvml&) = delete;

    /// The load of each graphics processor that tells it, as fractions; empty without the library.
    [[nodiscard]] std::vector<double> utilization();

private:
    class Library;

    const std::string path_;
    bool isTried_ = false;
    std::unique_ptr<Library> library_;
};

}  // namespace tidewatch::platform
