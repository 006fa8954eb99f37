#include "gallery/Pose.h"

namespace larkspan::gallery {

void Pose::setTarget(QQuickItem* target)
{
    if (target_ == target) return;
    target_ = target;
    emit targetChanged();
}

QRectF Pose::frame() const
{
    const QRectF whole(-reach_, -reach_, target_->width() + 2 * reach_, target_->height() + 2 * reach_);
    return target_->mapRectToScene(whole);
}

}  // namespace larkspan::gallery
