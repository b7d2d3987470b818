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

    // Gold or silver, for a signal with more range than others.
    Rectangle {
        id: tag

        readonly property bool isGold: label.text === "DOLBY VISION"

        objectName: "rangeTag"
        x: Theme.badgeLeading
        anchors.verticalCenter: parent.verticalCenter
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
            text: badge.playback.dynamicRange.tag
            font: Theme.overlayTag
            color: Theme.tagText
        }
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
