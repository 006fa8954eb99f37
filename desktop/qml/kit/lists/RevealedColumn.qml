import QtQuick

// Items that belong together, such as a field and its title: when the keyboard reaches one of them, all are scrolled
// into view if they fit.
Column {
}
