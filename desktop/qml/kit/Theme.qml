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
    // The edge of what can be pressed or filled in, which `line` is too faint for.
    readonly property color controlLine: hasHighContrast ? text : isDark ? "#737b87" : "#868d97"
    readonly property color controlLineHovered: secondary
    readonly property color field: card
    readonly property color text: isDark ? "#eceef1" : "#1d2127"
    readonly property color secondary: hasHighContrast ? text : isDark ? "#b0b7c1" : "#5a6068"
    readonly property color accent: isDark ? "#2f6fd0" : "#1a5bbd"
    readonly property color accentText: "#ffffff"
    readonly property color accentLine: hasHighContrast ? text : isDark ? "#4f86db" : accent
    readonly property color disabledText: hasHighContrast ? gray : isDark ? "#868d97" : "#7b828d"
    readonly property color disabledFill: Qt.tint(card, hover)
    readonly property color disabledLine: hasHighContrast ? disabledText : line
    readonly property color segment: isDark ? "#4a515b" : card
    readonly property color segmentLine: hasHighContrast ? text : isDark ? "#828994" : "#737b87"
    readonly property color switchOff: isDark ? "#737b87" : "#868d97"
    readonly property color knob: accentText
    readonly property color scrollHandle: controlLine
    readonly property color scrollHandleHovered: secondary
    readonly property color scrollHandlePressed: text
    readonly property color green: isDark ? "#5bd68f" : "#17703b"
    readonly property color orange: isDark ? "#f3ad5e" : "#964a00"
    readonly property color yellow: isDark ? "#e8ca5c" : "#705700"
    readonly property color red: isDark ? "#ff938c" : "#b32823"
    readonly property color blue: isDark ? "#8dbbfa" : "#1a5bbd"
    readonly property color gray: isDark ? "#b0b7c1" : "#5a6068"
    readonly property color focus: isDark ? blue : accent
    // The same colour in each state, so that nothing else is seen while one fades into another.
    readonly property color rest: Qt.alpha(text, 0)
    readonly property color hover: Qt.alpha(text, 0.06)
    readonly property color pressed: Qt.alpha(text, 0.12)
    // On the full colour of the accent or of a tone, whose words would be less legible on a lighter one.
    readonly property color restOnFill: Qt.alpha("black", 0)
    readonly property color hoverOnFill: Qt.alpha("black", 0.08)
    readonly property color pressedOnFill: Qt.alpha("black", 0.16)
    readonly property color accentOnCard: isDark ? blue : accent
    // The colour of text on the full colour of a tone.
    readonly property color toneText: isDark ? window : accentText
    readonly property color dimming: "#66000000"
    // Of a dialog over a sheet, beneath which the window is dimmed already.
    readonly property color secondDimming: "#26000000"
    readonly property color shadow: isDark ? "#99000000" : "#330b1220"
    readonly property color veil: "#33000000"
    // What is shown over the window: menus, and in dark also sheets and dialogs, which in light are the window's quiet
    // ground for their cards.
    readonly property color raised: isDark ? "#2b2f35" : card
    readonly property color sheet: isDark ? raised : window
    readonly property color raisedLine: hasHighContrast || !isDark ? line : "#454b54"
    // The full colour behind the words of what cannot be undone, and the accent's while it is pressed.
    readonly property color danger: isDark ? "#cf3a33" : "#b32823"
    readonly property color dangerText: "#ffffff"
    readonly property color accentPressed: Qt.darker(accent, 1.25)
    readonly property real pillOpacity: 0.15
    readonly property real badgeOpacity: 0.20
    readonly property real graphOpacity: 0.06
    readonly property real areaOpacity: 0.10
    readonly property real ruleOpacity: 0.55
    readonly property real metricOpacity: 0.12
    readonly property real outlineOpacity: hasHighContrast ? 1 : 0.3
    // Beneath the segments of a picker.
    readonly property color track: hover

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
    readonly property int headerGap: 16
    // The tabs: their distance from the header, their own padding, and that of the content from it.
    readonly property int tabsMargin: 16
    readonly property int tabsPadding: 12
    readonly property int tabsGap: 8
    readonly property int cardRadius: 12
    readonly property int boxRadius: 10
    readonly property int controlRadius: 8
    readonly property int pillRadius: 6
    readonly property int hairline: 1
    readonly property int focusWidth: 2
    readonly property int focusGap: 2
    // The least width and height of what can be hit.
    readonly property int leastTarget: 24
    readonly property int scrollBarWidth: 12
    readonly property int scrollHandleWidth: 4
    readonly property int scrollHandleWidthHovered: 8
    readonly property int iconSize: Math.round(16 * scale)
    readonly property int smallIconSize: Math.round(13 * scale)
    readonly property int largeIconSize: Math.round(40 * scale)
    // A line of text, which grows, and the free space above and below it, which does not.
    readonly property int controlHeight: Math.round(16 + 16 * scale)
    readonly property int smallControlHeight: Math.round(12 + 16 * scale)
    readonly property int headerHeight: Math.round(32 + 16 * scale)
    readonly property int rowHeight: Math.round(44 * scale)
    readonly property int placeholderWidth: 420
    readonly property int pickerWidth: 560
    // The largest width of lists and details, and that of the overview, whose lines are to be read.
    readonly property int columnWidth: 880
    readonly property int readingWidth: 680
    // Less room for a row's words, or for the header's status, would not tell anything.
    readonly property int wordsLeastWidth: Math.round(160 * scale)
    readonly property int statusLeastWidth: Math.round(64 * scale)
    readonly property int columnSpacing: 18
    readonly property int statusIconSize: Math.round(30 * scale)
    readonly property int sheetWidth: 520
    readonly property int wideSheetWidth: 720
    readonly property int aboutWidth: 420
    readonly property int dialogWidth: 400
    readonly property int menuWidth: 320
    readonly property int menuRowHeight: Math.round(12 + 16 * scale)
    readonly property int dotSize: Math.round(8 * scale)
    readonly property int graphHeight: 72
    readonly property int curveWidth: 2
    readonly property int recordDotSize: Math.round(10 * scale)
    readonly property int quoteBarWidth: 3
    readonly property int quoteGap: 10
    readonly property int itemGap: 7
    readonly property int tablePadding: 2
    readonly property int tightGap: 3
    readonly property int narrowGap: 6
    readonly property int wideGap: 10
    readonly property int rowGap: 12
    // Between the symbol and the word of a pill.
    readonly property int pillGap: Math.round(2 + 2 * scale)
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
    // From the top of a button of the header to that of its menu, which is clear of the header's line.
    readonly property int menuTop: Math.round((headerHeight + controlHeight) / 2) + halfUnit
    readonly property int shadowReach: 20

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
    // Opaque, so that the words on it are as legible on a row under the pointer as on the card.
    function tinted(tone: int, share: real): color {
        return Qt.tint(theme.card, Qt.alpha(theme.toneColor(tone), share))
    }
    // Yellow, which is dark in light mode, is told from orange by an outline.
    function toneOutline(tone: int): int {
        return tone === Tone.Yellow ? theme.hairline : 0
    }
}
