pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Glass
import Tromelo.Player
import Tromelo.Theme

// Ends the player and goes back to the library.
T.Button {
    id: button

    property Item backdrop: null

    objectName: "playerCloseButton"
    text: qsTr("Close")
    font: Theme.overlayTitle
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    leftPadding: Theme.closePadding
    rightPadding: Theme.closePadding
    topPadding: Theme.closeRise
    bottomPadding: Theme.closeRise
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.name: Wording.withoutKey(tip.tip)

    contentItem: Row {
        spacing: Theme.closeSpacing

        Symbol {
            height: label.height
            name: "xmark"
            size: Theme.closeSymbolSize
            color: Theme.overlayText
        }

        Text {
            id: label

            text: button.text
            font: button.font
            color: Theme.overlayText
        }
    }

    background: GlassSurface {
        backdrop: button.backdrop
        interactive: true
        hovered: button.hovered
        pressed: button.down

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: button.down ? Theme.controlPressed : button.hovered ? Theme.controlHovered : "transparent"
        }
    }

    HoverTip {
        id: tip

        control: button
        tip: PlayerActions.tip(PlayerActions.ClosePlayer)
        below: true
    }
}
