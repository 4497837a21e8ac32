import QtQml
import Tidewell

/// Since when something stands still. Too soon after it has come under the pointer, a press was meant
/// for what stood there before.
QtObject {
    property double since: 0

    function begin() {
        since = Date.now()
    }

    function isOver(): bool {
        return Math.abs(Date.now() - since) >= Kit.settlingTime  // a clock may be set back
    }
}
