import QtQuick

// A menu of words, of which one may be the present choice; that one is current when the menu opens.
KitMenu {
    id: wordMenu
    required property list<string> words
    // -1 for none.
    property int selected: -1
    signal chosen(int place)

    onOpened: currentIndex = selected

    Repeater {
        model: wordMenu.words
        KitMenuItem {
            required property int index
            required property string modelData
            text: modelData
            onTriggered: wordMenu.chosen(index)
        }
    }
}
