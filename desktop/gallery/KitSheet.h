#pragma once

#include <QImage>
#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>
#include <vector>

#include "adapters/MainExecutor.h"
#include "gallery/KitSamples.h"
#include "gallery/Pose.h"
#include "gallery/ShownScene.h"
#include "gallery/Stand.h"

namespace larkspan::gallery {

/// The sheet that shows every piece of the kit in every state.
class KitSheet {
public:
    /// The size of `look` is ignored: the sheet is as high as its content.
    KitSheet(const ShownScene::Look& look, adapters::MainExecutor& main);

    /// The sheet's own window, then those whose pictures stand on it.
    std::vector<QQuickWindow*> windows() const;
    std::vector<Pose*> poses() const;

    /// Brings a specimen into its state with the pointer or the keyboard.
    void take(const Pose& pose);
    /// Ends that state.
    void leave(const Pose& pose);

    /// The sheet with each specimen in its state.
    QImage picture();

private:
    KitSamples samples_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
    std::vector<Pose*> poses_;
    std::vector<Stand*> stands_;
};

}  // namespace larkspan::gallery
