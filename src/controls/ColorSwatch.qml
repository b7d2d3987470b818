pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A colour to take with one press.
T.Button {
    id: swatch

    required property color color
    property string tip: ""

    implicitWidth: Theme.swatchSize
    implicitHeight: Theme.swatchSize
    hoverEnabled: true
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()
    Accessible.name: tip

    background: Rectangle {
        radius: height / 2
        color: swatch.color
        opacity: swatch.down ? 0.7 : 1
        border.width: swatch.visualFocus ? Theme.focusWidth : Theme.hairline
        border.color: swatch.visualFocus ? Theme.accent : swatch.hovered ? Theme.primaryText : Theme.swatchEdge
    }

    HoverTip {
        control: swatch
        tip: swatch.tip
    }
}
