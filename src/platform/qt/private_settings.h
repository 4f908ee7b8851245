#pragma once

#include <sys/stat.h>

#include <QEvent>
#include <QSettings>

namespace tidewatch::platform {

/// Settings whose file is for its owner alone, whatever the umask: the toolkit replaces the file at each
/// write, and the new one would be as open as the umask lets it.
class PrivateSettings final : public QSettings {
public:
    using QSettings::QSettings;
    ~PrivateSettings() override { sync(); }

    void sync() {
        const OwnerOnly files;
        QSettings::sync();
    }

protected:
    // By this event the toolkit writes what was set.
    bool event(QEvent* event) override {
        const OwnerOnly files;
        return QSettings::event(event);
    }

private:
    // While it lives, new files are for their owner alone.
    class OwnerOnly final {
    public:
        OwnerOnly() : before_(::umask(S_IRWXG | S_IRWXO)) {}
        OwnerOnly(const OwnerOnly&) = delete;
        OwnerOnly& operator=(const OwnerOnly&) = delete;
        ~OwnerOnly() { ::umask(before_); }

    private:
        const mode_t before_;
    };
};

}  // namespace tidewatch::platform
