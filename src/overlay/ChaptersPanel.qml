pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The chapters, and the bookmarks below them. Choosing one goes there and closes the panel.
PanelList {
    id: panel

    required property PlaybackModel playback

    signal finished

    objectName: "chaptersPanel"
    implicitWidth: Theme.chaptersWidth
    implicitHeight: Math.min(contentHeight + topMargin + bottomMargin, Theme.chaptersHeight)
    model: playback.chapters
    onPlaced: positionViewAtIndex(playback.currentChapter, ListView.Contain)
    Accessible.name: qsTr("Chapters")

    footer: BookmarkList {
        width: panel.width
        playback: panel.playback
        onChosen: panel.finished()
    }

    delegate: PanelRow {
        id: row

        required property chapter modelData
        readonly property bool isCurrent: panel.playback.currentChapter === modelData.id

        objectName: "chapter"
        width: panel.width
        outset: -Theme.listPadding
        leftPadding: Theme.listPadding + Theme.rowSide
        rightPadding: Theme.listPadding + Theme.rowSide
        topPadding: Theme.rowRise
        bottomPadding: Theme.rowRise
        rest: isCurrent ? Theme.currentChapter : "transparent"
        Accessible.name: modelData.title
        Accessible.description: Format.clock(modelData.time)
        Accessible.selected: isCurrent
        onClicked: {
            panel.playback.seekToChapter(modelData.id);
            panel.finished();
        }

        contentItem: RowLayout {
            spacing: Theme.rowSpacing

            Text {
                Layout.preferredWidth: Theme.chapterNumberWidth
                horizontalAlignment: Text.AlignRight
                text: row.modelData.id + 1
                font: Theme.panelIndex
                color: Theme.secondaryText
            }

            OneLine {
                objectName: "chapterTitle"
                Layout.fillWidth: true
                Layout.rightMargin: Theme.rowGap
                content: row.modelData.title
                font: row.isCurrent ? Theme.panelStrong : Theme.panelText
                color: Theme.overlayText
                elide: Text.ElideRight
            }

            Text {
                objectName: "chapterTime"
                text: Format.clock(row.modelData.time)
                font: Theme.panelTime
                color: Theme.secondaryText
            }
        }
    }
}
