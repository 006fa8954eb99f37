#pragma once

#include <QQuickWindow>
#include <QSize>

#include "adapters/MainExecutor.h"
#include "gallery/Scene.h"
#include "gallery/Stage.h"
#include "qml/MainWindow.h"

namespace larkspan::gallery {

/// The size of the desktop's font, in points.
void setApplicationFontSize(double points);

/// Waits until the window looks the same twice; there is no motion to wait for.
void settle(QQuickWindow& window);

/// A scene in a window without motion, to be rendered or examined.
class ShownScene {
public:
    struct Look {
        bool isDark = false;
        QSize size{};
        double fontPointSize = 10;
        bool hasHighContrast = false;

        /// The scene's own look, in light colours.
        static Look of(const Scene& scene)
        {
            return {false, {scene.width, scene.height}, scene.fontPointSize, scene.hasHighContrast};
        }
    };

    ShownScene(const Scene& scene, const Look& look, adapters::MainExecutor& main);

    QQuickWindow& window() const { return mainWindow_.window(); }

private:
    void typeWhatIsKnown();
    void press(const QString& help);

    Stage stage_;
    MainWindow mainWindow_;
};

}  // namespace larkspan::gallery
