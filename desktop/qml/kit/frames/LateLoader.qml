import QtQuick

// Loads its file when that is first wanted, and keeps it: what a window does not begin with costs its start nothing.
Loader {
    required property bool isWanted
    required property url file
    // The properties that the file begins with.
    required property var given

    onIsWantedChanged: loadOnce()
    Component.onCompleted: loadOnce()
    function loadOnce() {
        if (isWanted && status === Loader.Null) setSource(file, given)
    }
}
