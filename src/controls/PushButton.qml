pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A button with a text.
T.Button {
    id: button

    function press() {
        if (!checkable)
            return click();
        toggle();
        toggled();
    }

    font: Theme.field
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Theme.fieldHeight
    leftPadding: Theme.fieldSide
    rightPadding: Theme.fieldSide
    hoverEnabled: true
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()
    Accessible.name: text

    contentItem: Text {
        text: button.text
        font: button.font
        color: Theme.primaryText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: Theme.fieldRadius
        color: button.down ? Theme.fieldPressed : button.checked ? Theme.fieldOn : button.hovered ? Theme.fieldHovered : Theme.fieldSurface
        border.width: button.visualFocus ? Theme.focusWidth : Theme.hairline
        border.color: button.visualFocus ? (button.checked ? Theme.primaryText : Theme.accent) : Theme.fieldEdge
    }
}
