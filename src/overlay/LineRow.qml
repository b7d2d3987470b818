pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// A line of the subtitles. A press goes there; its button says that it is spoken now.
PanelRow {
    id: row

    required property string words
    required property real start // seconds, without the delay
    required property real delay
    required property bool isCurrent // in the film
    required property bool isChosen // by the keyboard

    signal spoken

    outset: -Theme.listPadding
    leftPadding: Theme.listPadding + Theme.rowSide
    rightPadding: Theme.listPadding + Theme.rowSide
    topPadding: Theme.rowRise
    bottomPadding: Theme.rowRise
    rest: isCurrent ? Theme.currentChapter : isChosen ? Theme.rowPressed : "transparent"
    Accessible.name: row.words
    Accessible.description: time.text
    Accessible.selected: isCurrent

    contentItem: RowLayout {
        spacing: Theme.rowSpacing

        Text {
            id: time

            objectName: "lineTime"
            Layout.preferredWidth: Theme.lineTimeWidth
            Layout.alignment: Qt.AlignTop
            horizontalAlignment: Text.AlignRight
            text: Format.clock(row.start + row.delay)
            font: Theme.panelTime
            lineHeight: wording.implicitHeight / wording.lineCount
            lineHeightMode: Text.FixedHeight
            color: Theme.secondaryText
        }

        Text {
            id: wording

            objectName: "lineWords"
            Layout.fillWidth: true
            text: row.words
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            maximumLineCount: Theme.lineRows
            elide: Text.ElideRight
            font: row.isCurrent ? Theme.panelStrong : Theme.panelText
            color: Theme.overlayText
        }

        PushButton {
            objectName: "spokenNow"
            look: Theme.panelButton
            topPadding: 0
            opacity: row.hovered || row.isChosen ? 1 : 0
            symbol: "timer"
            tint: Theme.secondaryText
            tip: row.isChosen ? qsTr("This line is spoken now (Shift+Enter)") : qsTr("This line is spoken now")
            Accessible.description: row.words
            onClicked: row.spoken()
        }
    }
}
