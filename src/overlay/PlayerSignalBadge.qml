pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// What kind of signal plays, and what it is called.
OverlaySurface {
    id: badge

    required property PlaybackModel playback

    objectName: "playerSignalBadge"
    implicitWidth: Math.ceil(24 + range.implicitWidth + content.spacing + Math.min(title.implicitWidth, 360))
    implicitHeight: Math.ceil(content.implicitHeight) + 14
    radius: height / 2

    Row {
        id: content

        anchors.centerIn: parent
        spacing: 9

        Text {
            id: range
            text: badge.playback.dynamicRange.label
            font: Theme.overlayTitle
            color: Theme.overlayFaintText
        }

        Text {
            id: title
            width: badge.width - 24 - range.implicitWidth - content.spacing
            text: badge.playback.title
            textFormat: Text.PlainText
            font: Theme.overlayTitle
            color: Theme.overlayText
            elide: Text.ElideMiddle
        }
    }
}
