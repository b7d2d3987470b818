pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// Shows that its parent has the keyboard: a ring around it, which stands out beside any colour.
Rectangle {
    property real distance: 2 * Theme.focusWidth

    anchors.fill: parent
    anchors.margins: -distance
    radius: height / 2
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.accent
}
