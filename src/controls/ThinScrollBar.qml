pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// Shows how much of the content is visible, and can be dragged.
T.ScrollBar {
    id: bar

    visible: size < 1
    padding: Theme.scrollPadding
    implicitWidth: Theme.scrollWidth + leftPadding + rightPadding
    minimumSize: Theme.scrollLeast
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: Theme.scrollWidth
        radius: width / 2
        color: bar.pressed || bar.hovered ? Theme.scrollHandleHeld : Theme.scrollHandle
    }
}
