pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The strip above the detail pane, with the program's name and the one tool.
Item {
    id: header

    required property PlaybackModel playback

    implicitHeight: Theme.headerHeight

    Text {
        objectName: "libraryTitle"
        anchors.left: parent.left
        anchors.leftMargin: Theme.margin
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Tromelo")
        font: Theme.windowTitle
        color: Theme.primaryText
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    PushButton {
        objectName: "libraryOpen"
        anchors.right: parent.right
        anchors.rightMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        look: Theme.toolButton
        symbol: "folder.badge.plus"
        tip: PlayerActions.tip(PlayerActions.OpenVideo)
        tipBelow: true
        Accessible.name: qsTr("Open")
        onClicked: header.playback.presentOpenPanel()
    }
}
