pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Says how fast playback is and opens the list of speeds.
PlainButton {
    id: button

    required property PlaybackModel playback
    required property PlayerChrome chrome
    // Holds the list while it is open. It goes when this is hidden.
    required property Item room
    readonly property bool isOpen: chrome.showsSpeeds

    objectName: "speedMenu"
    implicitWidth: Math.ceil(Math.max(implicitContentWidth, Theme.speedWidth)) + leftPadding + rightPadding
    implicitHeight: Theme.speedHeight
    leftPadding: Theme.speedPadding
    rightPadding: Theme.speedPadding
    text: Format.speed(playback.speed)
    tip: PlayerActions.tip(PlayerActions.Speed)
    active: isOpen || !Format.isSameSpeed(playback.speed, 1)
    Accessible.role: Accessible.ButtonMenu
    Accessible.description: text
    Accessible.onPressAction: click()
    onClicked: chrome.showsSpeeds = true

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
            button.chrome.showsSpeeds = false;
        }
        function onWidthChanged() {
            button.chrome.showsSpeeds = false;
        }
        function onHeightChanged() {
            button.chrome.showsSpeeds = false;
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
            onDismissed: button.chrome.showsSpeeds = false
        }
    }
}
