pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A button that stays down while what it names is on.
T.Button {
    id: toggle

    checkable: true
    font: Theme.field
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Theme.fieldHeight
    leftPadding: Theme.fieldSide
    rightPadding: Theme.fieldSide
    hoverEnabled: true
    Accessible.name: text

    contentItem: Text {
        text: toggle.text
        font: toggle.font
        color: Theme.primaryText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: Theme.fieldRadius
        color: toggle.down ? Theme.fieldPressed : toggle.checked ? Theme.fieldOn : toggle.hovered ? Theme.fieldHovered : Theme.fieldSurface
        border.width: toggle.visualFocus ? Theme.focusWidth : Theme.hairline
        border.color: toggle.visualFocus ? Theme.accent : Theme.fieldEdge
    }
}
