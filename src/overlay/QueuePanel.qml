pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
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

    // Behind the last one come the buttons. Rows that have been moved lie in another order than the
    // list shows.
    function focusRow(row: int) {
        const next = list.itemAtIndex(row) ?? (row < 0 ? buttons.last : buttons.first);
        next.forceActiveFocus(Qt.TabFocusReason);
    }

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

        RowDrag {
            id: drag

            objectName: "queueDrag"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredHeight: Math.min(list.contentHeight + list.topMargin + list.bottomMargin, Theme.queueRowsHeight)
            list: list
            model: rows
            onDropped: (row, gap) => panel.playback.moveQueueItem(row, gap)

            PanelList {
                id: list

                objectName: "queueRows"
                anchors.fill: parent
                // What the pointer did to a row goes with it, so none is used for another file.
                reuseItems: false
                Accessible.name: qsTr("Queue")
                onPlaced: drag.center(rows.current)

                model: QueueModel {
                    id: rows
                    items: panel.playback.queue
                }

                delegate: QueueRow {
                    required property int index

                    objectName: "queueItem"
                    width: list.width
                    isLifted: drag.row === index
                    onChosen: panel.playback.playQueueItem(index)
                    onStepped: rows => panel.focusRow(index + rows)
                    onRemoved: {
                        if (activeFocus)
                            panel.focusRow(index + 1 < list.count ? index + 1 : index - 1);
                        panel.playback.removeQueueItem(index);
                    }
                    onMoved: by => panel.playback.moveQueueItem(index, by < 0 ? index - 1 : index + 2)
                    onActiveFocusChanged: if (activeFocus)
                        list.positionViewAtIndex(index, ListView.Contain)
                    onIndexChanged: if (activeFocus)
                        list.positionViewAtIndex(index, ListView.Contain)
                }
            }

            QueueLiftedRow {
                drag: drag
                title: rows.titleAt(drag.row)
            }
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: Theme.hairline
            color: Theme.panelDivider
        }

        QueueButtons {
            id: buttons

            Layout.fillWidth: true
            Layout.margins: Theme.groupedSpacing
            playback: panel.playback
        }
    }
}
