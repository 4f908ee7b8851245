#include "shell/views/stats_scene.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QQmlComponent>
#include <QVariantMap>
#include <array>
#include <chrono>
#include <random>

#include "base/calendar_day.h"
#include "ui/style/style.h"

namespace tidewatch {
namespace {

struct KnownApp {
    const char* id;
    const char* name;
    const char* category;  ///< of the desktop menu standard
};

constexpr std::array knownApps = {
    KnownApp{"code", "Visual Studio Code", "IDE"},
    KnownApp{"org.gnome.Terminal", "Terminal", "TerminalEmulator"},
    KnownApp{"firefox", "Firefox", "WebBrowser"},
    KnownApp{"org.libreoffice.writer", "LibreOffice Writer", "WordProcessor"},
    KnownApp{"thunderbird", "Correo Thunderbird", "Email"},
    KnownApp{"org.telegram.desktop", "Telegram", "InstantMessaging"},
    KnownApp{"com.spotify.Client", "Spotify", "Music"},
    KnownApp{"org.gimp.GIMP", "Programa de manipulación de imágenes de GNU", "2DGraphics"},
    KnownApp{"org.gnome.Nautilus", "Archivos", "FileManager"},
    KnownApp{"org.videolan.VLC", "Reproductor multimedia VLC", "Player"},
    KnownApp{"supertuxkart", "SuperTuxKart", "Game"},
};

}  // namespace

StatsWorld::StatsWorld()
    : statistics_(machine_.platform, services_, keys_,
                  {.dashboard = {.exportReport = [this] { ++reportsAsked_; },
                                 .reclassify = [this](DashboardModel&, const AppId& app,
                                                      QPointF) { menusAsked_.push_back(app.text()); }},
                   .system = {}}) {
    registerApplications();
}

void StatsWorld::registerApplications() {
    for (const auto& app : knownApps) {
        machine_.applications.registerApplication(AppId(app.id), {app.name, "", {app.category}});
    }
}

void StatsWorld::book(const char* app, const DayKey& day, int hour, int minute, std::int64_t seconds) {
    const AppId id(app);
    const auto inHour = hourKey(day, hour);
    const auto inBucket = bucketKey(day, {hour, minute});
    for (std::int64_t second = 0; second < seconds; ++second) {
        services_.counting.apps.incrementApp(id, day);
        services_.counting.hours.incrementApp(id, inHour);
        services_.counting.minutes.incrementApp(id, inBucket);
    }
    services_.counting.days.set(services_.counting.days.seconds(day) + Seconds(seconds), day);
}

void StatsWorld::bookProject(const Uuid& project, const char* app, const DayKey& day, std::int64_t seconds) {
    machine_.frontmost.set(AppId(app));
    for (std::int64_t second = 0; second < seconds; ++second)
        services_.projects.times.incrementCurrentApp(day, project);
}

void StatsWorld::bookBelievableWork() {
    machine_.clock.advance(std::chrono::hours(7) + std::chrono::minutes(43));
    const auto now = std::chrono::floor<std::chrono::days>(machine_.clock.now());
    for (int back = 40; back > 0; --back) {
        const auto date = now - std::chrono::days(back);
        const bool weekend = std::chrono::weekday(date).iso_encoding() > 5;
        if (!weekend || back % 5 == 0) bookDay(toDayKey(date), back);
    }
    bookToday();
}

void StatsWorld::bookDay(const DayKey& day, int seed) {
    std::mt19937 random(static_cast<unsigned>(seed));
    const int last = 14 + seed % 4;
    for (int hour = 9; hour <= last; ++hour) {
        if (hour == 13) continue;
        for (int minute = 0; minute < 60; minute += 10) {
            const auto any = random();
            const auto& app = knownApps[any % (random() % 3 == 0 ? knownApps.size() : 4)];
            book(app.id, day, hour, minute, 300 + static_cast<int>(random() % 301));
        }
    }
}

void StatsWorld::bookToday() {
    const auto day = today();
    const auto book = [&](const char* app, int hour, int minute, std::int64_t seconds) {
        this->book(app, day, hour, minute, seconds);
    };
    for (int hour : {9, 10, 11, 12, 15}) {
        for (int minute = 0; minute < 60; minute += 10) book("code", hour, minute, 250 + 40 * (hour - 9));
        book("org.gnome.Terminal", hour, 20, 180);
        book("firefox", hour, 30, 60 * (hour - 8));
    }
    book("thunderbird", 9, 0, 300);
    book("org.telegram.desktop", 11, 40, 290);
    book("supertuxkart", 14, 10, 420);
    book("com.spotify.Client", 14, 30, 240);
    book("org.libreoffice.writer", 14, 50, 600);
    book("org.gimp.GIMP", 16, 0, 540);
    book("org.example.SomeToolThatNobodyRegisteredAnywhere", 16, 10, 130);
    book("org.videolan.VLC", 16, 20, 200);
    auto& projects = services_.projects.store;
    const auto web = projects.addProject("Sitio web").id;
    const auto book2 =
        projects.addProject("Libro de cocina con un nombre bastante largo para una tarjeta").id;
    bookProject(web, "code", day, 5400);
    bookProject(web, "firefox", day, 900);
    bookProject(web, "org.gnome.Terminal", day, 700);
    bookProject(book2, "org.libreoffice.writer", day, 600);
}

StatsScene::StatsScene() {
    QObject::connect(&engine_, &QQmlEngine::warnings, &engine_, [this](const QList<QQmlError>& errors) {
        for (const auto& error : errors) viewWarnings_.append(error.toString());
    });
}

StatsScene::~StatsScene() = default;

void StatsScene::show(QSize size) {
    view_.reset();
    QQmlComponent component(&engine_);
    component.setData("import Tidewatch.Shell\nStatsView {}", QUrl());
    const QVariantMap properties{{"presenter", QVariant::fromValue(&presenter_)}};
    if (!component.isReady()) qFatal("%s", qPrintable(component.errorString()));
    Style::of(engine_)->follow(theme_);
    std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
    auto* item = qobject_cast<QQuickItem*>(object.get());
    if (item == nullptr) qFatal("%s", qPrintable(component.errorString()));
    static_cast<void>(object.release());
    view_.reset(item);
    window_.resize(size);
    view_->setParentItem(window_.contentItem());
    view_->setSize(size);
    // What is beside the tabs is created after the first frame.
    bool isPainted = false;
    const auto painted =
        QObject::connect(&window_, &QQuickWindow::frameSwapped, &window_, [&] { isPainted = true; });
    window_.show();
    while (!isPainted) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(painted);
    QCoreApplication::processEvents();
}

QQuickItem* StatsScene::item(const QString& name) const {
    // By visual parents: the rows of a list have no other parent.
    QList<QQuickItem*> open{view_.get()};
    while (!open.isEmpty()) {
        auto* found = open.takeFirst();
        if (found->objectName() == name) return found;
        open.append(found->childItems());
    }
    return nullptr;
}

QImage StatsScene::picture() {
    // One layout may cause another.
    for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
    return window_.grabWindow();
}

}  // namespace tidewatch
