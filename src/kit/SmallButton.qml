import Tidewell

/// A secondary button among several in a row.
GhostPillButton {
    fontSize: 12.5
    horizontalPadding: 15
    verticalPadding: 7
}
