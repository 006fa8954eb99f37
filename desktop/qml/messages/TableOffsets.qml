import QtQuick

// The horizontal scroll positions of a message's tables: the rows of a table are rows of the list, and scroll together.
QtObject {
    property list<real> places
    signal moved(table: int)

    function placeOf(table: int): real {
        return table < places.length ? places[table] : 0
    }
    function move(table: int, place: real) {
        places[table] = place
        moved(table)
    }
}
