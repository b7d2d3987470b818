pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// Says how fast playback is and opens the list of speeds.
PushButton {
    id: button

    required property PlaybackModel playback
    required property PlayerChrome chrome
    // Holds the list while it is open. It goes when this is hidden.
    required property Item room
    readonly property bool isOpen: chrome.showsSpeeds

    objectName: "speedMenu"
    look: Theme.barButton
    implicitWidth: Math.ceil(Math.max(implicitContentWidth, Theme.speedWidth)) + leftPadding + rightPadding
    implicitHeight: Theme.speedHeight
    leftPadding: Theme.speedPadding
    text: Format.speed(playback.speed)
    tint: Theme.overlayText
    tip: PlayerActions.tip(PlayerActions.Speed)
    active: isOpen || !Format.isSameSpeed(playback.speed, 1)
    Accessible.name: Wording.withoutKey(tip)
    Accessible.role: Accessible.ButtonMenu
    Accessible.description: text
    Accessible.onPressAction: click()
    onClicked: chrome.showsSpeeds = true

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
