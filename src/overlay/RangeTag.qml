pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Gold or silver, for a signal with more range than others.
Rectangle {
    id: tag

    required property dynamicRange range
    readonly property bool isGold: label.text === "DOLBY VISION"

    objectName: "rangeTag"
    visible: label.text !== ""
    width: Math.ceil(label.implicitWidth) + 2 * Theme.tagPadding
    height: Math.ceil(label.implicitHeight) + 2 * Theme.tagRise
    radius: Theme.tagRadius

    gradient: Gradient {
        orientation: Gradient.Horizontal

        GradientStop {
            position: 0
            color: tag.isGold ? Theme.goldLight : Theme.silverLight
        }
        GradientStop {
            position: 1
            color: tag.isGold ? Theme.goldDark : Theme.silverDark
        }
    }

    Text {
        id: label

        objectName: "rangeText"
        x: Theme.tagPadding
        y: Theme.tagRise
        text: tag.range.tag
        font: Theme.overlayTag
        color: Theme.tagText
    }
}
