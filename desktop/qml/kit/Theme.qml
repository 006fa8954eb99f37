pragma Singleton
import QtQuick
import Larkspan.Bridge

// Every colour and every size of the program.
QtObject {
    id: theme

    property bool isDark: false
    property bool hasHighContrast: false
    property bool reducesMotion: false

    readonly property color window: isDark ? "#1b1d21" : "#f4f5f7"
    readonly property color card: isDark ? "#25282d" : "#ffffff"
    readonly property color line: hasHighContrast ? secondary : isDark ? "#34383f" : "#e3e6ea"
    readonly property color text: isDark ? "#eceef1" : "#1d2127"
    readonly property color secondary: hasHighContrast ? text : isDark ? "#b0b7c1" : "#5a6068"
    readonly property color accent: isDark ? "#2f6fd0" : "#1a5bbd"
    readonly property color accentText: "#ffffff"
    readonly property color green: isDark ? "#5bd68f" : "#17703b"
    readonly property color orange: isDark ? "#f3ad5e" : "#964a00"
    readonly property color yellow: isDark ? "#e8ca5c" : "#705700"
    readonly property color red: isDark ? "#ff938c" : "#b32823"
    readonly property color blue: isDark ? "#8dbbfa" : "#1a5bbd"
    readonly property color gray: isDark ? "#b0b7c1" : "#5a6068"
    readonly property color focus: isDark ? blue : accent
    readonly property color hover: Qt.alpha(text, 0.06)
    readonly property color pressed: Qt.alpha(text, 0.12)
    readonly property color accentOnCard: isDark ? blue : accent
    // The colour of text on the full colour of a tone.
    readonly property color toneText: isDark ? window : accentText
    readonly property color dimming: "#66000000"
    readonly property color veil: "#33000000"
    readonly property real pillOpacity: 0.15
    readonly property real badgeOpacity: 0.20
    readonly property real graphOpacity: 0.06
    readonly property real areaOpacity: 0.10
    readonly property real ruleOpacity: 0.55
    readonly property real metricOpacity: 0.12
    readonly property real outlineOpacity: hasHighContrast ? 1 : 0.3
    readonly property color track: Qt.alpha(text, 0.25)

    readonly property real base: Application.font.pointSize > 0 ? Application.font.pointSize : 10
    readonly property real title: base * 1.8
    readonly property real title2: base * 1.45
    readonly property real title3: base * 1.2
    readonly property real body: base
    readonly property real subheadline: base * 0.93
    readonly property real caption: base * 0.86
    readonly property real caption2: base * 0.79

    // Lengths that contain text grow with the font; the spacing between items does not.
    readonly property real scale: Math.max(1, base / 10)
    readonly property int unit: 8
    readonly property int halfUnit: 4
    readonly property int margin: 20
    readonly property int cardRadius: 12
    readonly property int boxRadius: 10
    readonly property int controlRadius: 8
    readonly property int pillRadius: 6
    readonly property int hairline: 1
    readonly property int focusWidth: 2
    readonly property int iconSize: Math.round(16 * scale)
    readonly property int smallIconSize: Math.round(13 * scale)
    readonly property int largeIconSize: Math.round(40 * scale)
    readonly property int controlHeight: Math.round(32 * scale)
    readonly property int smallControlHeight: Math.round(28 * scale)
    readonly property int headerHeight: Math.round(48 * scale)
    readonly property int rowHeight: Math.round(44 * scale)
    readonly property int placeholderWidth: 420
    readonly property int pickerWidth: 560
    readonly property int columnWidth: 680
    readonly property int columnSpacing: 18
    readonly property int statusIconSize: Math.round(30 * scale)
    readonly property int sheetWidth: 520
    readonly property int wideSheetWidth: 720
    readonly property int aboutWidth: 420
    readonly property int dialogWidth: 400
    readonly property int menuWidth: 320
    readonly property int menuRowHeight: Math.round(28 * scale)
    readonly property int dotSize: 8
    readonly property int graphHeight: 72
    readonly property int curveWidth: 2
    readonly property int recordDotSize: 10
    readonly property int quoteBarWidth: 3
    readonly property int quoteGap: 10
    readonly property int itemGap: 7
    readonly property int tablePadding: 2
    readonly property int tightGap: 3
    readonly property int narrowGap: 6
    readonly property int wideGap: 10
    readonly property int rowGap: 12
    readonly property int headerPillPadding: 5
    readonly property int titleHeight: 22
    readonly property int detailTitleHeight: 38
    readonly property int smallDetailTitleHeight: 34
    readonly property int calendarCellWidth: Math.round(34 * scale)
    readonly property int calendarWidth: 7 * calendarCellWidth
    readonly property int calendarMostWidth: 10 * calendarCellWidth
    readonly property int calendarCellHeight: Math.max(24, Math.round(18 * scale))
    readonly property int calendarBarHeight: Math.round(24 * scale)
    // From this width on there is room for two calendars side by side, each on its card.
    readonly property int twoColumnsWidth: 2 * (calendarWidth + 4 * unit) + 2 * unit
    readonly property int timeFieldWidth: Math.round(44 * scale)
    readonly property int toggleWidth: Math.round(36 * scale)
    readonly property int toggleHeight: Math.round(20 * scale)
    readonly property int columnMostWidth: 240
    readonly property int textBoxHeight: 100
    readonly property int textBoxMostHeight: 220
    readonly property int popupMostHeight: 260
    readonly property int aboutIconSize: 88
    readonly property int headlineIconSize: Math.round(28 * scale)
    readonly property int pullDistance: 64

    readonly property int quick: reducesMotion ? 0 : 120
    readonly property int calm: reducesMotion ? 0 : 180
    readonly property int turn: 900
    // The longest pause between letters of one search, in milliseconds.
    readonly property int typingPause: 1000

    function toneColor(tone: int): color {
        switch (tone) {
        case Tone.Primary: return theme.text
        case Tone.Green: return theme.green
        case Tone.Orange: return theme.orange
        case Tone.Yellow: return theme.yellow
        case Tone.Red: return theme.red
        case Tone.Blue: return theme.blue
        case Tone.Gray: return theme.gray
        }
        return theme.secondary
    }
}
