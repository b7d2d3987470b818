pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Theme

// A button of the player with no surface of its own. It never takes the keyboard.
T.Button {
    id: button

    required property string tip
    property bool active: false

    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.overlayDisabled
    Accessible.name: Wording.withoutKey(tip)

    background: Rectangle {
        radius: Theme.controlRadius
        color: button.down ? Theme.controlPressed : button.active ? Theme.controlActive : button.hovered ? Theme.controlHovered : "transparent"
    }

    HoverTip {
        control: button
        tip: Wording.shown(button.tip)
    }
}
