"""The examples of CommonMark 0.30 with an intentionally different result, by reason."""

DIFFERENCES = {
    "a message has no HTML, so a tag is text, and what is markup in it counts": [
        21, 31, 344, *range(474, 477), 493, 523, *range(612, 617), 622, 624, *range(627, 632), 642, 643],
    "a text has no link references, since each is read for itself": [
        23, 33, *range(526, 545), 548, 549, *range(552, 571), 572, 575, 576, *range(581, 589), *range(590, 593)],
    "blanks and line feeds stay as they are, in code as well": [
        *range(335, 338), 633, *range(635, 639), 640, 641, 645, 649],
    "the example is about blocks, and an inline text has none": [
        18, 19, 24, 34, 36, 38, 500, 545, 546, 547, 550, 551, 589, 626, 646, 647],
    "a line end is read as white space, so it does not end a destination in angle brackets; that link then opens nothing": [
        490],
}
