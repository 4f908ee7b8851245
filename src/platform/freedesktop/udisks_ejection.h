#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "base/serial_queue.h"
#include "platform/api/job_queue_factory.h"
#include "platform/api/volume_ejection.h"
#include "platform/freedesktop/message_bus.h"

namespace tidewatch::platform {

/// Ejection through the UDisks2 service on the system bus, which asks for the user's confirmation where that
/// is required. The bus is connected to at the first ejection. Main thread only, callbacks included.
class UdisksEjection final : public VolumeEjection {
public:
    /// `address` is that of the system bus. `queues` must outlive this object.
    UdisksEjection(JobQueueFactory& queues, std::string address);

    /// The system bus of this machine.
    [[nodiscard]] static std::string standardAddress();

    void eject(const std::string& mountPoint,
               std::function<void(const std::optional<EjectionError>& error)> done) override;

private:
    JobQueueFactory& queues_;
    const std::string address_;
    MessageBus bus_;
    QObject running_;                   // owns the running ejections
    std::unique_ptr<JobQueue> probes_;  // last: its results use the rest
};

}  // namespace tidewatch::platform
