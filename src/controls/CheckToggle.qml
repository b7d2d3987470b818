pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A check box with its label.
T.CheckBox {
    id: box

    property string tip: ""

    function press() {
        box.toggle();
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
    Accessible.onPressAction: press()
    Accessible.onToggleAction: press()

    indicator: Rectangle {
        anchors.verticalCenter: box.verticalCenter
        width: Theme.checkBoxSize
        height: Theme.checkBoxSize
        radius: Theme.checkBoxRadius
        color: box.down ? Theme.fieldPressed : box.checked ? Theme.fieldOn : box.hovered ? Theme.fieldHovered : Theme.fieldSurface
        border.width: box.visualFocus ? Theme.focusWidth : Theme.hairline
        border.color: box.visualFocus ? (box.checked ? Theme.primaryText : Theme.accent) : Theme.fieldEdge

        Symbol {
            anchors.centerIn: parent
            visible: box.checked
            name: "checkmark"
            size: Theme.fieldSymbolSize - 3
            color: Theme.primaryText
        }
    }

    contentItem: Text {
        leftPadding: box.indicator.width + box.spacing
        text: box.text
        font: box.font
        color: Theme.primaryText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    HoverTip {
        control: box
        tip: box.tip
    }
}
