#pragma once

#include <sys/stat.h>

#include <QEvent>
#include <QFileInfo>
#include <QSettings>

namespace tidewatch::platform {

/// Settings whose file is for its owner alone, whatever the umask: the toolkit replaces the file at each
/// write, and the new one would be as open as the umask lets it.
///
/// The file may become anything while the program runs. The toolkit would wait for ever for a named pipe, so
/// what is set then stays in memory, and reaches the disk at a later sync() if the file is an ordinary one
/// again.
class PrivateSettings final : public QSettings {
public:
    explicit PrivateSettings(const QString& path) : QSettings(path, QSettings::NativeFormat) {}
    ~PrivateSettings() override { sync(); }

    /// Whether the toolkit can open what has this name, or make it.
    [[nodiscard]] static bool canBeOpened(const QString& path) {
        return isOrdinary(path) && isOrdinary(path + ".lock");
    }

    void sync() {
        if (!canBeOpened(fileName())) return;
        const OwnerOnly files;
        QSettings::sync();
    }

protected:
    // By this event the toolkit writes what was set.
    bool event(QEvent* event) override {
        if (event->type() == QEvent::UpdateRequest && !canBeOpened(fileName())) return true;
        const OwnerOnly files;
        return QSettings::event(event);
    }

private:
    [[nodiscard]] static bool isOrdinary(const QString& path) {
        constexpr qint64 maxSize = 1024 * 1024;
        const QFileInfo info(path);
        return !info.exists() || (info.isFile() && info.size() <= maxSize);
    }

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
