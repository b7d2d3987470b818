pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A pill-shaped button with a text.
T.Button {
    id: button

    font: Theme.callout
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    leftPadding: Theme.spacing + 4
    rightPadding: leftPadding
    topPadding: 9
    bottomPadding: topPadding
    hoverEnabled: true
    Accessible.name: text

    contentItem: Text {
        text: button.text
        font: button.font
        color: Theme.primaryText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: height / 2
        color: button.down ? Theme.surfacePressed : button.hovered ? Theme.surfaceHovered : Theme.surface
        border.width: button.visualFocus ? Theme.focusWidth : 1
        border.color: button.visualFocus ? Theme.accent : Theme.surfaceEdge

        Behavior on color {
            ColorAnimation {
                duration: Theme.quick
            }
        }
    }
}
