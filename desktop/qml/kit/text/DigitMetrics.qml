import QtQuick

// The width of the widest digit of a font, for `FigureText`.
FontMetrics {
    id: metrics
    readonly property real digitWidth: {
        let widest = 0
        for (const digit of "0123456789") widest = Math.max(widest, metrics.advanceWidth(digit))
        return widest
    }
}
