import QtQuick
import QtQuick.Templates as T
import Tidewell

/// Content that may be higher than its place. The control that the keyboard comes to is brought
/// into sight.
Flickable {
    id: root

    boundsBehavior: Flickable.StopAtBounds
    contentWidth: width
    clip: contentHeight > height
    activeFocusOnTab: false

    T.ScrollBar.vertical: ScrollHandle {}

    SoftEnds { area: root }

    FocusFollower { area: root }
}
