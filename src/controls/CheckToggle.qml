pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A box to tick, and what that means.
T.CheckBox {
    id: toggle

    property string tip: ""

    function press() {
        toggle();
        toggled();
    }

    font: Theme.field
    spacing: Theme.fieldSide
    implicitWidth: indicator.width + spacing + Math.ceil(implicitContentWidth)
    implicitHeight: Math.max(Theme.fieldHeight, implicitContentHeight)
    hoverEnabled: true
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()
    Accessible.name: text
    Accessible.description: tip

    indicator: Rectangle {
        anchors.verticalCenter: toggle.verticalCenter
        width: Theme.checkBoxSize
        height: Theme.checkBoxSize
        radius: Theme.checkBoxRadius
        color: toggle.down ? Theme.fieldPressed : toggle.checked ? Theme.fieldOn : toggle.hovered ? Theme.fieldHovered : Theme.fieldSurface
        border.width: toggle.visualFocus ? Theme.focusWidth : Theme.hairline
        border.color: toggle.visualFocus ? Theme.accent : Theme.fieldEdge

        Symbol {
            anchors.centerIn: parent
            visible: toggle.checked
            name: "checkmark"
            size: Theme.fieldSymbolSize - 3
            color: Theme.primaryText
        }
    }

    contentItem: Text {
        leftPadding: toggle.indicator.width + toggle.spacing
        text: toggle.text
        font: toggle.font
        color: Theme.primaryText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    HoverTip {
        control: toggle
        tip: toggle.tip
    }
}
