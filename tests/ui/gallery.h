#pragma once

#include <QImage>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

#include "shell/themes/theme_registry.h"

namespace tidewatch {

/// How a scene comes to show something.
template <class Scene>
struct GalleryState {
    const char* name;
    void (*reach)(Scene& scene);
};

/// A folder with pictures of what scenes show, for looking at them.
class Gallery final {
public:
    /// Paints in all themes, or only in the one with this id.
    Gallery(QString folder, QString onlyTheme);

    /// Writes the picture to the file `name`.png in the folder; `name` may have folders of its own.
    void save(const QImage& picture, const QString& name);

    /// Calls `paint(themeId)` for each theme, after the scene has switched to it.
    template <class Scene, class Paint>
    void paintThemes(Scene& scene, Paint paint) {
        for (const auto& theme : themes_.themes()) {
            const auto id = QString::fromStdString(theme.id);
            if (!onlyTheme_.isEmpty() && id != onlyTheme_) continue;
            scene.theme_.switchTo(theme.id);
            paint(id);
        }
        warnings_ += std::exchange(scene.viewWarnings_, {});
    }

    /// Calls `paint(scene, stateName, themeId)` for each state and theme, with a new scene for each state.
    template <class Scene, class Paint>
    void paintStates(const std::vector<GalleryState<Scene>>& states, Paint paint) {
        for (const auto& [name, reach] : states) {
            Scene scene;
            reach(scene);
            paintThemes(scene,
                        [&, state = QString(name)](const QString& theme) { paint(scene, state, theme); });
        }
    }

    /// What went wrong: QML's warnings, and pictures that could not be written.
    [[nodiscard]] const QStringList& warnings() const { return warnings_; }

private:
    const QString folder_;
    const QString onlyTheme_;
    const ThemeRegistry themes_;
    QStringList warnings_;
};

/// `pictures` of equal size in rows of `columns`, as one.
[[nodiscard]] QImage sheetOf(const std::vector<QImage>& pictures, int columns);

/// Defined by each gallery.
void paint(Gallery& gallery);

}  // namespace tidewatch
