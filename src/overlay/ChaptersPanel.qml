pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// The chapters, and the bookmarks below them. Choosing one goes there and closes the panel.
ListView {
    id: panel

    required property PlaybackModel playback
    property bool isPlaced: false

    signal finished

    function showCurrent() {
        positionViewAtIndex(playback.currentChapter, ListView.Contain);
    }

    objectName: "chaptersPanel"
    implicitWidth: Theme.chaptersWidth
    implicitHeight: Math.min(contentHeight + topMargin + bottomMargin, Theme.chaptersHeight)
    topMargin: Theme.listPadding
    bottomMargin: Theme.listPadding
    spacing: Theme.listSpacing
    model: playback.chapters
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    Accessible.role: Accessible.List
    // Once it has its size.
    onHeightChanged: if (height > 0 && !isPlaced) {
        isPlaced = true;
        Qt.callLater(showCurrent);
    }
    Accessible.name: qsTr("Chapters")

    T.ScrollBar.vertical: ThinScrollBar {}

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
