#include "gallery/Stand.h"

#include "gallery/ShownScene.h"

namespace larkspan::gallery {

QQuickWindow& Stand::shown() const
{
    return shown_ ? shown_->window() : *findChild<QQuickWindow*>();
}

}  // namespace larkspan::gallery
