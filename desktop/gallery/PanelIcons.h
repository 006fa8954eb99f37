#pragma once

#include <QImage>

#include <string>
#include <vector>

namespace larkspan::gallery {

/// The icon of an overall status in the panel.
struct PanelIcon {
    /// In lower case: "operational".
    std::string status;
    /// As on a light panel and on a dark one.
    QImage picture;
};

/// One for each status, in the order of the enumeration.
std::vector<PanelIcon> panelIcons();

}  // namespace larkspan::gallery
