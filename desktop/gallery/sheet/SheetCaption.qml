import QtQuick
import Larkspan.Kit

// What a specimen is.
Label {
    font.pointSize: Theme.caption
    color: Theme.secondary
    wrapMode: Text.WrapAtWordBoundaryOrAnywhere
}
