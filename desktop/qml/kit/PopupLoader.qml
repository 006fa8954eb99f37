import QtQuick
import QtQuick.Templates as T

// Makes a sheet or a dialog when it is to be seen, and lets go of it when it is not.
Loader {
    id: loader
    required property bool isShown
    // It has closed, in whatever way.
    signal dismissed

    // A popup opens over a window, so it waits until its maker is in one.
    active: isShown && T.Overlay.overlay !== null
    onLoaded: (item as T.Popup).open()

    Connections {
        target: loader.item
        ignoreUnknownSignals: true
        function onClosed() {
            loader.dismissed()
        }
    }
}
