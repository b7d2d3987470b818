pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Says how fast playback is and opens the list of speeds.
PlainButton {
    id: button

    required property PlaybackModel playback
    // Holds the list while it is open. It goes when this is hidden.
    required property Item room
    property bool isOpen: false

    objectName: "speedMenu"
    implicitWidth: Math.ceil(Math.max(implicitContentWidth, Theme.speedWidth)) + leftPadding + rightPadding
    implicitHeight: Theme.speedHeight
    leftPadding: Theme.speedPadding
    rightPadding: Theme.speedPadding
    text: Format.speed(playback.speed)
    tip: qsTr("Playback speed ([ and ])")
    active: isOpen || !Format.isSameSpeed(playback.speed, 1)
    Accessible.role: Accessible.ButtonMenu
    Accessible.description: text
    onClicked: isOpen = true

    contentItem: Text {
        text: button.text
        font: Theme.overlaySpeed
        color: Theme.overlayText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    Connections {
        target: button.room
        enabled: button.isOpen

        function onVisibleChanged() {
            button.isOpen = false;
        }
        function onWidthChanged() {
            button.isOpen = false;
        }
        function onHeightChanged() {
            button.isOpen = false;
        }
    }

    Loader {
        parent: button.room
        anchors.fill: parent
        visible: active
        active: button.isOpen

        sourceComponent: SpeedList {
            playback: button.playback
            anchor: button.mapToItem(button.room, Qt.rect(0, 0, button.width, button.height))
            onDismissed: button.isOpen = false
        }
    }
}
