pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A pill-shaped button with a text, or a symbol and a text: filled with the accent colour where it
// is the thing to do.
T.Button {
    id: button

    property bool prominent: false
    property string symbol: ""
    property Item backdrop: null

    font: Theme.callout
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: Theme.buttonPadding
    rightPadding: leftPadding
    topPadding: Theme.buttonRise
    bottomPadding: topPadding
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.name: text
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    contentItem: Item {
        implicitWidth: label.implicitWidth
        implicitHeight: words.implicitHeight

        Row {
            id: label

            anchors.centerIn: parent
            spacing: Theme.buttonGap

            Symbol {
                objectName: "buttonSymbol"
                visible: button.symbol !== ""
                anchors.verticalCenter: parent.verticalCenter
                name: button.symbol
                size: Theme.buttonSymbolSize
                color: words.color
            }

            Text {
                id: words

                text: button.text
                textFormat: Text.PlainText
                font: button.font
                color: button.prominent ? Theme.onAccent : Theme.primaryText
            }
        }
    }

    background: Item {
        GlassSurface {
            anchors.fill: parent
            visible: !button.prominent
            backdrop: button.backdrop
            interactive: true
            hovered: button.hovered
            pressed: button.down
        }

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: button.prominent ? (button.down ? Theme.accentPressed : button.hovered ? Theme.accentHovered : Theme.accent) : button.down ? Theme.surfacePressed : button.hovered ? Theme.surfaceHovered : "transparent"
            border.width: button.visualFocus ? Theme.focusWidth : 0
            border.color: button.prominent ? Theme.primaryText : Theme.accent

            Behavior on color {
                ColorAnimation {
                    duration: Theme.quick
                }
            }
        }
    }
}
