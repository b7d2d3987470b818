pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// What plays, has played and will play.
Item {
    id: panel

    required property PlaybackModel playback

    objectName: "queuePanel"
    implicitWidth: Theme.queueWidth
    implicitHeight: content.implicitHeight

    ColumnLayout {
        id: content

        anchors.fill: parent
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
            Layout.margins: Theme.headerPadding
            spacing: Theme.trackSpacing

            Text {
                Layout.fillWidth: true
                text: qsTr("Queue")
                font: Theme.panelHeader
                color: Theme.overlayText
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            PushButton {
                objectName: "addToQueue"
                look: Theme.panelButton
                symbol: "plus"
                text: qsTr("Add…")
                onClicked: panel.playback.presentQueuePanel()
            }

            PushButton {
                objectName: "clearUpNext"
                look: Theme.panelButton
                enabled: panel.playback.hasNext
                text: qsTr("Clear Up Next")
                onClicked: panel.playback.clearQueue()
            }
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: Theme.hairline
            color: Theme.panelDivider
        }

        Text {
            objectName: "queueHint"
            Layout.fillWidth: true
            Layout.margins: Theme.panelPadding
            visible: panel.playback.queue.length <= 1
            text: qsTr("Nothing up next. Drop videos on the player or choose Add….")
            wrapMode: Text.Wrap
            font: Theme.panelCallout
            color: Theme.secondaryText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        ListView {
            id: list

            objectName: "queueRows"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredHeight: Math.min(contentHeight + topMargin + bottomMargin, Theme.queueRowsHeight)
            topMargin: Theme.listPadding
            bottomMargin: Theme.listPadding
            spacing: Theme.listSpacing
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            // What the pointer did to a row goes with it, so none is used for another file.
            reuseItems: false
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Queue")

            Component.onCompleted: Qt.callLater(positionViewAtIndex, rows.current, ListView.Contain)

            model: QueueModel {
                id: rows
                items: panel.playback.queue
            }

            T.ScrollBar.vertical: ThinScrollBar {}

            delegate: QueueRow {
                required property int index

                objectName: "queueItem"
                width: list.width
                onChosen: panel.playback.playQueueItem(index)
                onRemoved: panel.playback.removeQueueItem(index)
            }
        }
    }
}
