pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The strip above the detail pane: whose window it is, and its one tool.
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

    T.Button {
        id: open

        objectName: "libraryOpen"
        anchors.right: parent.right
        anchors.rightMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        implicitWidth: Theme.toolWidth
        implicitHeight: Theme.toolHeight
        focusPolicy: Qt.TabFocus
        hoverEnabled: true
        text: qsTr("Open")
        Accessible.name: text
        Keys.onReturnPressed: click()
        Keys.onEnterPressed: click()
        onClicked: header.playback.presentOpenPanel()

        contentItem: Symbol {
            name: "folder.badge.plus"
            size: Theme.symbolSize
            color: Theme.symbol
        }

        background: Rectangle {
            radius: height / 2
            color: open.down ? Theme.surfacePressed : open.hovered ? Theme.surfaceHovered : Theme.surface
            border.width: open.visualFocus ? Theme.focusWidth : Theme.hairline
            border.color: open.visualFocus ? Theme.accent : Theme.surfaceEdge
        }

        HoverTip {
            control: open
            tip: PlayerActions.tip(PlayerActions.OpenVideo)
            below: true
        }
    }
}
