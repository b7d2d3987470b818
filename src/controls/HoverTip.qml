pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// What a control is for, shown once the pointer has rested on it. Where controls with tips lie in
// each other, only the innermost counts as hovered. The tip gets in nobody's way, and after a press
// it stays away until the pointer comes back. The text is shown as it is.
Loader {
    id: loader

    required property T.AbstractButton control
    required property string tip // nothing shows where it is empty
    // Below the control instead of above it.
    property bool below: false

    active: false

    function stop() {
        rest.stop();
        active = false;
    }

    HoverHandler {
        parent: loader.control
        enabled: loader.tip !== ""
        blocking: true
    }

    Timer {
        id: rest

        interval: Theme.toolTipDelay
        onTriggered: loader.active = loader.tip !== ""
    }

    Connections {
        target: loader.control

        function onHoveredChanged() {
            loader.control.hovered ? rest.restart() : loader.stop();
        }
        function onPressed() {
            loader.stop();
        }
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
        implicitWidth: Math.min(Math.ceil(implicitContentWidth) + leftPadding + rightPadding, Theme.toolTipWidth)
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        x: Math.round((parent.width - width) / 2)
        y: loader.below ? parent.height + Theme.toolTipGap : -height - Theme.toolTipGap
        text: loader.tip
        font: Theme.toolTip

        contentItem: Text {
            text: tooltip.text
            textFormat: Text.PlainText
            font: tooltip.font
            color: Theme.overlayText
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        }

        background: Rectangle {
            radius: Theme.toolTipRadius
            color: Theme.toolTipSurface
            border.width: Theme.hairline
            border.color: Theme.overlayEdge
        }
    }
}
