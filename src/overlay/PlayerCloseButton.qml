pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// Ends the player and goes back to the library.
T.Button {
    id: button

    objectName: "playerCloseButton"
    text: qsTr("Close")
    font: Theme.overlayTitle
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    leftPadding: 12
    rightPadding: 12
    topPadding: 8
    bottomPadding: 8
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.name: qsTr("Close player")

    contentItem: Row {
        spacing: 7

        CrossGlyph {
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.overlayText
        }

        Text {
            text: button.text
            font: button.font
            color: Theme.overlayText
        }
    }

    background: Rectangle {
        radius: height / 2
        color: button.down ? Theme.overlayPressed : button.hovered ? Theme.overlayHovered : Theme.overlaySurface
        border.width: 1
        border.color: Theme.overlayEdge
    }
}
