pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Where chapters begin, behind the slider of the position. Takes no input.
Item {
    id: marks

    required property PlaybackModel playback

    Repeater {
        model: SliderTravel.marks(marks.playback.chapters, marks.playback.duration, marks.width)

        Rectangle {
            required property real modelData

            objectName: "chapterMark"
            x: modelData - width / 2
            y: (marks.height - height) / 2
            width: Theme.markWidth
            height: Theme.markHeight
            radius: width / 2
            color: Theme.mark
        }
    }
}
