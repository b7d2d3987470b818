pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A colour to choose with one press.
T.Button {
    id: swatch

    required property color color
    property string tip: ""

    implicitWidth: Theme.swatchSize
    implicitHeight: Theme.swatchSize
    hoverEnabled: true
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    background: Rectangle {
        radius: height / 2
        color: swatch.color
        opacity: swatch.down ? 0.7 : 1
        border.width: Theme.hairline
        border.color: swatch.hovered ? Theme.primaryText : Theme.swatchEdge

        FocusRing {
            visible: swatch.visualFocus
        }
    }

    HoverTip {
        control: swatch
        tip: swatch.tip
    }
}
