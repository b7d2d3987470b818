pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// What a control is for, once the pointer has rested on it. It is in nobody's way.
Loader {
    id: loader

    required property T.AbstractButton control
    required property string tip
    // Beneath the control in place of above it.
    property bool below: false

    readonly property bool isPointedAt: control.hovered && !control.down
    property bool isShown: false

    active: isShown
    onIsPointedAtChanged: isShown = false

    Timer {
        interval: Theme.toolTipDelay
        running: loader.isPointedAt
        onTriggered: loader.isShown = true
    }

    sourceComponent: T.ToolTip {
        id: tooltip

        objectName: "toolTip"
        parent: loader.control
        visible: true
        enabled: false
        focus: false
        closePolicy: T.Popup.NoAutoClose
        margins: Theme.toolTipMargin
        padding: Theme.toolTipPadding
        leftPadding: padding + 2
        rightPadding: padding + 2
        implicitWidth: implicitContentWidth + leftPadding + rightPadding
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        x: Math.round((parent.width - width) / 2)
        y: loader.below ? parent.height + Theme.toolTipGap : -height - Theme.toolTipGap
        text: Format.wording(loader.tip)
        font: Theme.toolTip

        contentItem: Text {
            text: tooltip.text
            textFormat: Text.PlainText
            font: tooltip.font
            color: Theme.overlayText
        }

        background: Rectangle {
            radius: Theme.toolTipRadius
            color: Theme.toolTipSurface
            border.width: Theme.hairline
            border.color: Theme.overlayEdge
        }
    }
}
