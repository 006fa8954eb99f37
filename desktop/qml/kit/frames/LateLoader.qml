import QtQuick

// Loads its file when it is first needed, and keeps it, so that it does not slow down the start.
Loader {
    required property bool isWanted
    required property url file
    // The initial properties of the loaded item.
    required property var given

    onIsWantedChanged: loadOnce()
    Component.onCompleted: loadOnce()
    function loadOnce() {
        if (isWanted && status === Loader.Null) setSource(file, given)
    }
}
