pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player
import Tromelo.Theme

// Where playback is, and how far it goes.
Item {
    id: row

    required property PlaybackModel playback
    readonly property SliderInput input: slider
    property real shownTime

    // Whoever sees it: a scene in which nothing changes isn't drawn.
    Binding on shownTime {
        when: row.visible
        restoreMode: Binding.RestoreNone
        value: row.playback.isScrubbing ? row.playback.scrubPosition : row.playback.elapsed
    }

    implicitHeight: Theme.sliderHeight

    component Time: Text {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(Math.ceil(implicitWidth), Theme.timeWidth)
        font: Theme.overlayClock
        color: Theme.timeText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Time {
        id: elapsed

        objectName: "elapsedTime"
        text: Format.clock(row.shownTime)
    }

    // Where chapters begin, behind the slider.
    Repeater {
        model: SliderTravel.marks(row.playback.chapters, row.playback.duration, slider.width)

        Rectangle {
            required property real modelData

            objectName: "chapterMark"
            x: slider.x + modelData - width / 2
            y: slider.y + (slider.height - height) / 2
            width: Theme.markWidth
            height: Theme.markHeight
            radius: width / 2
            color: Theme.mark
        }
    }

    LoopMarks {
        anchors.fill: slider
        playback: row.playback
    }

    BookmarkMarks {
        anchors.fill: slider
        playback: row.playback
    }

    PlayerSlider {
        id: slider

        objectName: "seekSlider"
        anchors.left: elapsed.right
        anchors.right: remaining.left
        anchors.leftMargin: Theme.timeSpacing
        anchors.rightMargin: Theme.timeSpacing
        enabled: row.playback.duration > 0
        name: qsTr("Position")
        shown: row.shownTime
        maximumValue: Math.max(row.playback.duration, 1)
        stepSize: PlayerActions.seekStep
        onBegun: row.playback.beginScrubbing()
        onMoved: value => row.playback.scrubTo(value)
        onEnded: row.playback.endScrubbing()
    }

    Time {
        id: remaining

        objectName: "remainingTime"
        anchors.right: parent.right
        horizontalAlignment: Text.AlignRight
        text: Format.remaining(row.playback.duration, row.shownTime)
    }
}
