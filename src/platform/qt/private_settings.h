#pragma once

#include <sys/stat.h>

#include <QEvent>
#include <QFileInfo>
#include <QSettings>

namespace tidewatch::platform {

/// Settings whose file is private to its owner, whatever the umask: the toolkit replaces the file at each
/// write, with permissions according to the umask.
///
/// The file may be replaced by anything while the program runs. The toolkit would block on a named pipe, so
/// changes stay in memory then, and are written by a later sync() once the file is a regular one again.
class PrivateSettings final : public QSettings {
public:
    explicit PrivateSettings(const QString& path) : QSettings(path, QSettings::NativeFormat) {}
    ~PrivateSettings() override { sync(); }

    /// Whether the toolkit can open or create the file safely.
    [[nodiscard]] static bool canBeOpened(const QString& path) {
        return isOrdinary(path) && isOrdinary(path + ".lock");
    }

    void sync() {
        if (!canBeOpened(fileName())) return;
        const OwnerOnly files;
        QSettings::sync();
    }

protected:
    // This event makes the toolkit write changes.
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

    // During its lifetime, new files are private to their owner.
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
