pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Glass
import Tromelo.Player
import Tromelo.Theme

// The moment that the pointer is at on the slider of the position: its picture, when that is, and in
// which chapter. There is nothing of it before there is a picture, and the pointer goes through it.
GlassSurface {
    id: preview

    required property PlaybackModel playback
    required property PlayerControlBar bar
    // All that the floating views have.
    required property size room
    property PictureSource pictures: null
    // Something is open where it would be.
    property bool isCovered: false

    readonly property point corner: PopoverFrame.placeAbove(Qt.rect(bar.positionX + bar.position.pointedX, bar.y, 0, bar.height), Qt.size(width, height), room)

    objectName: "momentPreview"
    visible: picture.hasPicture
    radius: Theme.previewRadius
    x: corner.x
    y: corner.y
    place: x
    width: words.width + 2 * Theme.previewPadding
    height: words.y + words.height + Theme.previewRise
    Accessible.role: Accessible.Graphic
    Accessible.name: time.text
    Accessible.description: chapter.text

    // Subtitles would be read through its words.
    Rectangle {
        z: -1
        anchors.fill: parent
        radius: preview.radius
        color: Theme.popoverBacking
    }

    MomentPicture {
        id: picture

        objectName: "momentPicture"
        x: Theme.previewPadding + (words.width - width) / 2
        y: Theme.previewPadding
        width: implicitWidth
        height: implicitHeight
        source: preview.pictures
        isWanted: preview.bar.position.isPointedAt && !preview.isCovered
        moment: preview.bar.position.pointedValue
        room: PopoverFrame.pictureWithin(preview.bar.y, Theme.previewSize)
        radius: Theme.previewRadius - Theme.previewPadding
    }

    Column {
        id: words

        x: Theme.previewPadding
        y: picture.y + picture.height + Theme.previewGap
        width: Math.max(Math.ceil(picture.width), Theme.previewLeastWidth)
        spacing: Theme.previewSpacing

        Text {
            id: time

            objectName: "momentTime"
            width: words.width
            horizontalAlignment: Text.AlignHCenter
            text: Format.clock(picture.moment)
            font: Theme.overlayValue
            color: Theme.overlayText
        }

        OneLine {
            id: chapter

            objectName: "momentChapter"
            visible: text !== ""
            leftPadding: Theme.previewPadding
            rightPadding: Theme.previewPadding
            width: words.width
            horizontalAlignment: Text.AlignHCenter
            content: Format.chapterAt(preview.playback.chapters, picture.moment)
            font: Theme.overlayChapter
            color: Theme.badgeChapter
        }
    }
}
