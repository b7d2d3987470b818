pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// How much of a film was seen, as a line, and what is left of it.
Item {
    id: bar

    required property FilmPlace place

    implicitHeight: Math.ceil(words.implicitHeight)

    Rectangle {
        anchors.left: parent.left
        anchors.right: words.left
        anchors.rightMargin: Theme.seenGap
        anchors.verticalCenter: parent.verticalCenter
        height: Theme.seenHeight
        radius: height / 2
        color: Theme.seenTrack

        Rectangle {
            width: Math.max(height, parent.width * bar.place.seen)
            height: parent.height
            radius: parent.radius
            color: Theme.accent
        }
    }

    Text {
        id: words

        objectName: "seenText"
        anchors.right: parent.right
        text: bar.place.left
        font: Theme.seen
        color: Theme.secondaryText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
