pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// All lines of the subtitles that are shown, to search and to go to. The one that is read now stays in
// view unless the person looks elsewhere.
Item {
    id: panel

    required property PlaybackModel playback
    readonly property SubtitleLines lines: playback.subtitleLines
    property bool looksAround: false // until the pointer leaves
    readonly property bool follows: !looksAround && list.currentIndex < 0
    readonly property int chosen: list.currentIndex < 0 ? rows.current : list.currentIndex

    function follow() {
        if (follows && rows.current >= 0)
            list.positionViewAtIndex(rows.current, ListView.Center);
    }
    function choose(step) {
        list.currentIndex = Math.max(0, Math.min(chosen + step, list.count - 1));
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }
    function go(row) {
        if (row >= 0)
            playback.seekTo(rows.startOf(row) + playback.subtitleDelay);
    }
    function sync(row) {
        if (row >= 0)
            playback.syncSubtitles(rows.startOf(row));
    }

    objectName: "linesPanel"
    implicitWidth: Theme.linesWidth
    implicitHeight: Theme.linesHeight
    onFollowsChanged: follow()
    Component.onCompleted: field.forceActiveFocus(Qt.PopupFocusReason)

    LineModel {
        id: rows

        lines: panel.lines
        sought: field.text
        seconds: panel.playback.elapsed - panel.playback.subtitleDelay
        onCurrentChanged: Qt.callLater(panel.follow)
        onSoughtChanged: list.currentIndex = sought !== "" && count > 0 ? 0 : -1
    }

    EntryField {
        id: field

        objectName: "lineSearch"
        x: Theme.headerPadding
        y: Theme.headerPadding
        width: panel.width - 2 * x
        name: qsTr("Search the lines")
        placeholderText: qsTr("Search")
        font: Theme.panelText
        onAccepted: panel.go(panel.chosen)
        Keys.onUpPressed: panel.choose(-1)
        Keys.onDownPressed: panel.choose(1)
        Keys.onPressed: event => {
            event.accepted = event.modifiers === Qt.ShiftModifier && event.key === Qt.Key_Return;
            if (event.accepted)
                panel.sync(panel.chosen);
        }
    }

    PanelList {
        id: list

        objectName: "lineList"
        anchors.top: field.bottom
        anchors.bottom: timing.top
        width: panel.width
        model: rows
        currentIndex: -1
        highlightFollowsCurrentItem: false
        onPlaced: panel.follow()
        onMovementStarted: panel.looksAround = pointer.hovered
        T.ScrollBar.vertical.onPressedChanged: panel.looksAround = pointer.hovered
        Accessible.name: qsTr("Subtitle lines")

        delegate: LineRow {
            id: row

            required property int index

            objectName: "line"
            width: list.width
            delay: panel.playback.subtitleDelay
            isCurrent: rows.current === index
            isChosen: list.currentIndex === index
            onClicked: panel.go(index)
            onSpoken: panel.sync(index)
        }

        HoverHandler {
            id: pointer
            onHoveredChanged: if (!hovered)
                panel.looksAround = false
        }
    }

    Text {
        objectName: "linesNote"
        anchors.centerIn: list
        width: list.width - 2 * Theme.panelPadding
        visible: rows.count === 0
        text: panel.lines.note || qsTr("No line has these words.")
        font: Theme.panelCallout
        color: Theme.secondaryText
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Rectangle {
        objectName: "linesProgress"
        anchors.bottom: timing.top
        width: panel.width * panel.lines.progress
        height: Theme.hairline * 2
        visible: panel.lines.isReading
        color: Theme.accent
        Accessible.ignored: true
    }

    Rectangle {
        anchors.bottom: timing.top
        width: panel.width
        height: Theme.hairline
        color: Theme.panelDivider
        Accessible.ignored: true
    }

    DelayRow {
        id: timing

        objectName: "linesTiming"
        anchors.bottom: panel.bottom
        anchors.bottomMargin: Theme.headerPadding
        x: Theme.panelPadding
        width: panel.width - 2 * x
        height: implicitHeight + Theme.headerPadding
        label: qsTr("Timing")
        delay: panel.playback.subtitleDelay
        onChosen: seconds => panel.playback.setSubtitleDelay(seconds)
    }
}
