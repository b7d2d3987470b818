pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// Shows where the keyboard is, from outside of its parent, where it stands out from any colour.
Rectangle {
    property real distance: 2 * Theme.focusWidth

    anchors.fill: parent
    anchors.margins: -distance
    radius: height / 2
    color: "transparent"
    border.width: Theme.focusWidth
    border.color: Theme.accent
}
