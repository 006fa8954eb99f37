pragma Singleton
import QtQuick

// Whether the user works with the keyboard now. Lists show their focus ring to those who do; controls know by themselves.
QtObject {
    property bool isKeyboard: false
}
