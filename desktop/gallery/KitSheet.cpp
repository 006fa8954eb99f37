#include "gallery/KitSheet.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QQmlComponent>
#include <QtQml/QQmlExtensionPlugin>

#include <algorithm>

#include "bridge/items/ItemAccess.h"

Q_IMPORT_QML_PLUGIN(Larkspan_GalleryPlugin)

namespace larkspan::gallery {

namespace {

template <typename Item>
void collect(const QQuickItem& from, std::vector<Item*>& found)
{
    for (auto* const child : from.childItems()) {
        if (auto* const item = qobject_cast<Item*>(child)) found.push_back(item);
        collect(*child, found);
    }
}

void send(QQuickWindow& window, QEvent::Type type, const QPointF& place, Qt::MouseButton button)
{
    const bool isHeld = type == QEvent::MouseButtonPress || (type == QEvent::MouseMove && button != Qt::NoButton);
    QMouseEvent event(type, place, window.mapToGlobal(place), type == QEvent::MouseMove ? Qt::NoButton : button,
        isHeld ? button : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

/// Somewhere without a specimen.
constexpr QPointF aside(1, 1);

/// From now on the user counts as one who works with the keyboard; the key itself does nothing.
void touchKeyboard(QQuickWindow& window)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F35, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_F35, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &press);
    QCoreApplication::sendEvent(&window, &release);
}

void touchPointer(QQuickWindow& window)
{
    send(window, QEvent::MouseButtonPress, aside, Qt::LeftButton);
    send(window, QEvent::MouseButtonRelease, aside, Qt::LeftButton);
    send(window, QEvent::MouseMove, aside, Qt::NoButton);
}

void activate(QQuickWindow& window)
{
    window.requestActivate();
    QCoreApplication::processEvents();
}

QImage photographed(QQuickWindow& window)
{
    QCoreApplication::processEvents();
    return window.grabWindow();
}

void put(QImage& sheet, const QRectF& place, const QImage& picture, const QRectF& part)
{
    const auto scale = picture.devicePixelRatio();
    QPainter painter(&sheet);
    painter.drawImage(place, picture, QRectF(part.topLeft() * scale, part.size() * scale));
}

}  // namespace

KitSheet::KitSheet(const ShownScene::Look& look, adapters::MainExecutor& main)
    : samples_(main)
{
    bridge::reportUnreachableItems();
    setApplicationFontSize(look.fontPointSize);
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/qt/qml/Larkspan/Gallery/sheet/KitSheet.qml")));
    auto* const made
        = component.createWithInitialProperties({{QStringLiteral("samples"), QVariant::fromValue(&samples_)},
            {QStringLiteral("isDark"), look.isDark}, {QStringLiteral("hasHighContrast"), look.hasHighContrast}});
    window_.reset(qobject_cast<QQuickWindow*>(made));
    if (!window_) qFatal("the sheet of the kit does not load: %s", qPrintable(component.errorString()));
    window_->show();
    settle(*window_);
    collect(*window_->contentItem(), poses_);
    std::erase_if(poses_, [](const Pose* pose) { return !pose->isTaken() || !pose->target(); });
    collect(*window_->contentItem(), stands_);

    const auto all = scenes();
    for (auto* const stand : stands_) {
        const auto isShown
            = [stand](const Scene& scene) { return stand->scene() == QString::fromStdString(scene.name); };
        const auto scene = std::ranges::find_if(all, isShown);
        auto small = look;
        small.size = stand->size().toSize();
        if (scene != all.end()) stand->show(std::make_shared<ShownScene>(*scene, small, main));
    }
}

std::vector<QQuickWindow*> KitSheet::windows() const
{
    std::vector<QQuickWindow*> all{window_.get()};
    for (const auto* const stand : stands_) all.push_back(&stand->shown());
    return all;
}

std::vector<Pose*> KitSheet::poses() const
{
    return poses_;
}

void KitSheet::take(const Pose& pose)
{
    // Not in the middle, where a picker has the border of two segments.
    const auto place = pose.target()->mapToScene(QPointF(pose.target()->width() / 3, pose.target()->height() / 2));
    if (pose.kind() == QStringLiteral("focused")) {
        touchKeyboard(*window_);
        pose.target()->forceActiveFocus(Qt::TabFocusReason);
        return;
    }
    send(*window_, QEvent::MouseMove, place, Qt::NoButton);
    if (pose.kind() == QStringLiteral("pressed")) send(*window_, QEvent::MouseButtonPress, place, Qt::LeftButton);
}

void KitSheet::leave(const Pose& pose)
{
    // Released elsewhere, it presses nothing.
    if (pose.kind() == QStringLiteral("pressed")) {
        send(*window_, QEvent::MouseMove, aside, Qt::LeftButton);
        send(*window_, QEvent::MouseButtonRelease, aside, Qt::LeftButton);
    }
    window_->contentItem()->childItems().constFirst()->forceActiveFocus(Qt::OtherFocusReason);
    touchPointer(*window_);
}

QImage KitSheet::picture()
{
    activate(*window_);
    touchPointer(*window_);
    auto sheet = photographed(*window_);
    for (const auto* const pose : poses_) {
        take(*pose);
        const auto frame = pose->frame();
        put(sheet, frame, photographed(*window_), frame);
        leave(*pose);
    }
    for (const auto* const stand : stands_) {
        auto& shown = stand->shown();
        activate(shown);
        touchKeyboard(shown);
        const QRectF whole(QPointF(), stand->size());
        put(sheet, stand->mapRectToScene(whole), photographed(shown), whole);
    }
    return sheet;
}

}  // namespace larkspan::gallery
