import QtQuick
import QtQuick.Templates as T
import Larkspan.Bridge
import Larkspan.Kit

// The list of a picker, over its line.
T.Popup {
    id: popup
    required property string name
    required property list<choice> choices
    required property int selectedPlace
    signal chosen(id: string)

    x: parent ? parent.width - width : 0
    y: parent ? parent.height : 0
    width: parent ? Math.min(parent.width, Theme.menuWidth * Theme.scale) : 0
    height: Math.min(list.contentHeight + 2 * padding, Theme.popupMostHeight * Theme.scale)
    margins: Theme.unit
    padding: Theme.halfUnit
    modal: true
    dim: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onOpened: {
        list.currentIndex = Math.max(0, selectedPlace)
        list.positionViewAtIndex(list.currentIndex, ListView.Contain)
        list.forceActiveFocus(Qt.PopupFocusReason)
    }

    function choose(place: int) {
        popup.close()
        if (place >= 0 && place < choices.length) chosen(choices[place].id)
    }

    contentItem: ListView {
        id: list
        focus: true
        clip: true
        model: popup.choices
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        Accessible.role: Accessible.PopupMenu
        Accessible.name: popup.name

        delegate: ChoiceRow {
            width: ListView.view.width
            isCurrent: ListView.isCurrentItem
            onEntered: list.currentIndex = index
            onTriggered: popup.choose(index)
        }

        Keys.onReturnPressed: popup.choose(currentIndex)
        Keys.onEnterPressed: popup.choose(currentIndex)
        Keys.onSpacePressed: popup.choose(currentIndex)
        Keys.onPressed: event => {
            event.accepted = true
            if (event.key === Qt.Key_Home) currentIndex = 0
            else if (event.key === Qt.Key_End) currentIndex = count - 1
            else event.accepted = goTo(event.text.toLowerCase())
        }
        function goTo(letter: string): bool {
            if (letter.length !== 1 || letter <= " ") return false
            for (let step = 1; step <= count; ++step) {
                const place = (currentIndex + step) % count
                if (!popup.choices[place].name.toLowerCase().startsWith(letter)) continue
                currentIndex = place
                break
            }
            return true
        }

        ScrollBarLoader {
            flickable: list
        }
    }

    background: Surface {}
    exit: FadeOut {}

    FadeIn {
        target: popup
    }
}
