# Each symbol that the program shows, and the file of the distribution's icon set that draws it.
set(LARKSPAN_SYMBOLS
    "arrow.clockwise                arrow-clockwise"
    "checkmark.circle.fill          check-circle-fill"
    "doc.text.magnifyingglass       file-earmark-text"
    "exclamationmark.icloud.fill    cloud-slash-fill"
    "exclamationmark.triangle       exclamation-triangle"
    "exclamationmark.triangle.fill  exclamation-triangle-fill"
    "questionmark.circle            question-circle"
    "timer                          stopwatch"
    "wrench.and.screwdriver         wrench"
    "wrench.and.screwdriver.fill    tools"
    "xmark.circle.fill              x-circle-fill"
    "xmark.octagon.fill             x-octagon-fill"
)
