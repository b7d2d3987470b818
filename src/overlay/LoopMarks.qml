pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Behind the slider of the position, and as large: the part that plays over and over, or where it is to
// begin.
Item {
    id: marks

    required property PlaybackModel playback
    readonly property list<real> places: SliderTravel.loopMarks(playback.abLoop, playback.duration, width)

    Rectangle {
        objectName: "loopStretch"
        visible: marks.places.length > 1
        x: marks.places[0] ?? 0
        anchors.verticalCenter: parent.verticalCenter
        width: (marks.places[1] ?? 0) - x
        height: Theme.markHeight
        color: Theme.loopStretch
    }

    Repeater {
        model: marks.places

        Rectangle {
            required property real modelData

            objectName: "loopMark"
            x: modelData - width / 2
            anchors.verticalCenter: marks.verticalCenter
            width: Theme.markWidth
            height: Theme.loopMarkHeight
            radius: width / 2
            color: Theme.accent
        }
    }
}
