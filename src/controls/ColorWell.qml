pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// Shows a colour and opens a window to choose another.
T.Button {
    id: well

    required property color color
    property string tip: ""

    signal chosen(color color)

    implicitWidth: Theme.wellWidth
    implicitHeight: Theme.fieldHeight
    padding: Theme.fieldInset + Theme.hairline
    hoverEnabled: true
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()
    Accessible.name: text
    Accessible.description: tip
    onClicked: chooser.open(color, well)

    contentItem: Rectangle {
        radius: Theme.fieldRadius - Theme.fieldInset
        color: well.color
        border.width: Theme.hairline
        border.color: Theme.swatchEdge
    }

    background: Rectangle {
        radius: Theme.fieldRadius
        color: well.down ? Theme.fieldPressed : well.hovered ? Theme.fieldHovered : Theme.fieldSurface
        border.width: well.visualFocus ? Theme.focusWidth : Theme.hairline
        border.color: well.visualFocus ? Theme.accent : Theme.fieldEdge
    }

    ColorChooser {
        id: chooser

        title: well.text
        onChosen: color => well.chosen(color)
    }

    HoverTip {
        control: well
        tip: well.tip
    }
}
