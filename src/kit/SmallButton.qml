import Tidewell

/// A secondary button among several in a row.
GhostPillButton {
    fontSize: Theme.sizeControl
    horizontalPadding: 15
    verticalPadding: 7
}
