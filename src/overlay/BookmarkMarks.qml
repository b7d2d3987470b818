pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Above the slider of the position, and as wide: a dot for each bookmark.
Item {
    id: marks

    required property PlaybackModel playback

    Repeater {
        model: SliderTravel.bookmarkMarks(marks.playback.bookmarks, marks.playback.duration, marks.width)

        Rectangle {
            required property real modelData

            objectName: "bookmarkMark"
            x: modelData - width / 2
            width: Theme.bookmarkMark
            height: width
            radius: width / 2
            color: Theme.goldLight
        }
    }
}
