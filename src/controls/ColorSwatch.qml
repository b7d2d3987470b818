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

    background: Rectangle {
        radius: height / 2
        color: swatch.color
        opacity: swatch.down ? 0.7 : 1
        border.width: Theme.hairline
        border.color: swatch.hovered ? Theme.primaryText : Theme.swatchEdge

        // Outside, where it stands out from any colour.
        Rectangle {
            objectName: "focusRing"
            anchors.fill: parent
            anchors.margins: -2 * Theme.focusWidth
            visible: swatch.visualFocus
            radius: height / 2
            color: "transparent"
            border.width: Theme.focusWidth
            border.color: Theme.accent
        }
    }

    HoverTip {
        control: swatch
        tip: swatch.tip
    }
}
