pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// What is played: its kind of signal where that is special, its title and chapter.
OverlaySurface {
    id: badge

    required property PlaybackModel playback
    // The lines' own widths follow from the badge's.
    readonly property real titleWidth: Math.ceil(Math.max(title.implicitWidth, chapter.visible ? chapter.implicitWidth : 0))
    readonly property real tagRoom: tag.visible ? tag.width + Theme.badgeSpacing : 0

    objectName: "playerSignalBadge"
    Accessible.role: Accessible.StaticText
    Accessible.name: title.text
    Accessible.description: chapter.text
    implicitWidth: Theme.badgeLeading + tagRoom + Math.min(titleWidth, Theme.badgeTitleWidth) + Theme.badgeTrailing
    implicitHeight: Math.ceil(titles.implicitHeight) + 2 * Theme.badgeRise

    RangeTag {
        id: tag

        x: Theme.badgeLeading
        anchors.verticalCenter: parent.verticalCenter
        range: badge.playback.dynamicRange
    }

    component Line: OneLine {
        width: titles.width
        horizontalAlignment: Text.AlignRight
    }

    Column {
        id: titles

        anchors.verticalCenter: parent.verticalCenter
        x: Theme.badgeLeading + badge.tagRoom
        width: badge.width - x - Theme.badgeTrailing
        spacing: 1

        Line {
            id: title

            objectName: "badgeTitle"
            content: badge.playback.title
            font: Theme.overlayTitle
            color: Theme.badgeTitle
        }

        Line {
            id: chapter

            objectName: "badgeChapter"
            visible: text !== ""
            content: Format.chapterTitle(badge.playback.chapters, badge.playback.currentChapter)
            font: Theme.overlayChapter
            color: Theme.badgeChapter
        }
    }
}
