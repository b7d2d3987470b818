pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Theme

// A button of a panel without a surface: a symbol, a text or both.
T.Button {
    id: button

    property string symbol: ""
    property color tint: Theme.overlayText
    // Shown where the pointer rests, if there is one.
    property string tip: ""

    font: Theme.panelText
    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    leftPadding: Theme.panelButtonSide
    rightPadding: leftPadding
    topPadding: Theme.panelButtonRise
    bottomPadding: topPadding
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.panelDisabled
    Accessible.name: text || tip

    contentItem: Row {
        spacing: Theme.panelButtonSpacing

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.symbol !== ""
            name: button.symbol
            size: Theme.rowSymbolSize
            color: button.tint
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.text !== ""
            text: button.text
            font: button.font
            color: button.tint
        }
    }

    background: Rectangle {
        radius: Theme.fieldRadius
        color: button.down ? Theme.rowPressed : button.hovered ? Theme.rowHovered : "transparent"
    }

    HoverTip {
        control: button
        tip: button.tip
    }
}
