import QtQuick

// How far the tables of a message are scrolled sideways: the rows of a table are rows of the list, and scroll as one.
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
