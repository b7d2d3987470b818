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
        id: title

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

    // A mark that stays for as long as nothing is written of what is played.
    Rectangle {
        objectName: "privacyMark"
        visible: header.playback.isPrivate
        anchors.left: title.right
        anchors.leftMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        width: mark.implicitWidth + 2 * Theme.chipPadding
        height: mark.implicitHeight + 2 * Theme.chipRise
        radius: height / 2
        color: Theme.surface
        border.width: Theme.hairline
        border.color: Theme.surfaceEdge
        Accessible.role: Accessible.StaticText
        Accessible.name: words.text

        Row {
            id: mark

            anchors.centerIn: parent
            spacing: Theme.headingSpacing

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "eye.slash"
                size: Theme.sidebarSymbolSize
                color: Theme.gold
            }

            Text {
                id: words

                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Private: nothing is remembered")
                font: Theme.chip
                color: Theme.gold
                Accessible.ignored: true
            }
        }
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
