pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// The card that lists the keys.
OverlaySurface {
    id: panel

    required property PlayerChrome chrome

    objectName: "playerShortcutsPanel"
    visible: chrome.showsShortcuts
    implicitWidth: 640
    implicitHeight: 420
    radius: 26

    Text {
        x: 22
        y: 22
        text: qsTr("Keyboard Shortcuts")
        font: Theme.overlayHeader
        color: "white"
    }
}
