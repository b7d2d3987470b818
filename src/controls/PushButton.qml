pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Glass
import Tromelo.Theme

// A button with a symbol, a text or both, of any look.
T.Button {
    id: button

    property ButtonLook look: Theme.fieldButton
    property string symbol: ""
    property real symbolSize: look.symbolSize
    property color tint: active ? look.chosenInk : look.ink
    // What it stands for is on, or open.
    property bool active: checked
    // Shown where the pointer rests, if there is one.
    property string tip: ""
    property bool tipBelow: false
    // What is behind it, for glass to blur.
    property Item backdrop: null

    function press() {
        if (!checkable)
            return click();
        toggle();
        toggled();
    }

    font: look.font
    implicitWidth: look.width || Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: look.height || Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    leftPadding: look.side
    rightPadding: leftPadding
    topPadding: look.rise
    bottomPadding: topPadding
    focusPolicy: look.focusPolicy
    hoverEnabled: true
    opacity: enabled ? 1 : look.disabled
    Accessible.name: text || Wording.withoutKey(tip)
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    contentItem: Item {
        implicitWidth: line.implicitWidth
        implicitHeight: words.implicitHeight

        Row {
            id: line

            // In the middle where the look gives the button a size.
            x: button.look.height > 0 ? (parent.width - width) / 2 : 0
            height: parent.height
            spacing: button.look.spacing

            Symbol {
                height: parent.height
                visible: button.symbol !== ""
                name: button.symbol
                size: button.symbolSize
                color: button.tint
            }

            Text {
                id: words

                height: parent.height
                bottomPadding: button.look.lift
                visible: text !== ""
                text: button.text
                textFormat: Text.PlainText
                font: button.font
                color: button.tint
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

    background: Rectangle {
        radius: button.look.radius < 0 ? height / 2 : button.look.radius
        color: button.down ? button.look.pressed : button.active ? button.look.chosen : button.hovered ? button.look.hovered : button.look.surface
        border.width: button.visualFocus ? Theme.focusWidth : button.look.edgeWidth
        border.color: !button.visualFocus ? button.look.edge : button.active ? button.look.chosenFocusEdge : button.look.focusEdge

        Behavior on color {
            enabled: button.look.fades

            ColorAnimation {
                duration: Theme.quick
            }
        }

        Loader {
            z: -1
            anchors.fill: parent
            active: button.look.isGlass

            sourceComponent: GlassSurface {
                backdrop: button.backdrop
                interactive: true
                hovered: button.hovered
                pressed: button.down
            }
        }
    }

    HoverTip {
        control: button
        tip: button.tip
        below: button.tipBelow
    }
}
