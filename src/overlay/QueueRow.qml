pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Theme

// A file of the queue: a press plays it, unless it plays already.
PanelRow {
    id: row

    required property string title
    required property string path
    required property bool isCurrent

    signal chosen
    signal removed

    outset: -Theme.listPadding
    leftPadding: Theme.listPadding + Theme.rowSide
    rightPadding: Theme.listPadding + Theme.rowSide
    topPadding: Theme.rowRise
    bottomPadding: Theme.rowRise
    rest: isCurrent ? Theme.currentItem : "transparent"
    tip: path
    Accessible.name: title
    Accessible.description: path
    Accessible.selected: isCurrent
    onClicked: if (!isCurrent)
        chosen()

    contentItem: RowLayout {
        spacing: Theme.rowSpacing

        Symbol {
            objectName: "queueSymbol"
            Layout.preferredWidth: Theme.queueSymbolWidth
            name: row.isCurrent ? "speaker.wave.2.fill" : "film"
            size: Theme.rowSymbolSize
            color: row.isCurrent ? Theme.accent : Theme.secondaryText
        }

        OneLine {
            objectName: "queueTitle"
            Layout.fillWidth: true
            Layout.rightMargin: Theme.rowGap
            content: row.title
            font: row.isCurrent ? Theme.panelStrong : Theme.panelText
            color: Theme.overlayText
        }

        PushButton {
            objectName: "removeFromQueue"
            look: Theme.panelButton
            visible: !row.isCurrent
            topPadding: 0
            symbol: "xmark.circle.fill"
            tint: Theme.secondaryText
            tip: qsTr("Remove from queue")
            Accessible.description: row.title
            onClicked: row.removed()
        }
    }
}
