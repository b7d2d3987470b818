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
    // It is being dragged, and stands elsewhere meanwhile.
    property bool isLifted: false

    signal chosen
    signal removed
    signal moved(int rows)
    // The keyboard goes to another row.
    signal stepped(int rows)

    outset: -Theme.listPadding
    leftPadding: Theme.listPadding + Theme.rowSide
    rightPadding: Theme.listPadding + Theme.rowSide
    topPadding: Theme.rowRise
    bottomPadding: Theme.rowRise
    rest: isCurrent ? Theme.currentItem : "transparent"
    tip: path
    Accessible.name: title
    Accessible.description: qsTr("%1. Alt+Up and Alt+Down move it, Delete removes it.").arg(path)
    Accessible.selected: isCurrent
    opacity: isLifted ? Theme.liftedFrom : 1
    focusPolicy: Qt.TabFocus
    onClicked: if (!isCurrent)
        chosen()
    Keys.onTabPressed: stepped(1)
    Keys.onBacktabPressed: stepped(-1)
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    RowKeys {
        active: row.activeFocus
        onMoved: rows => row.moved(rows)
        onRemoved: if (!row.isCurrent)
            row.removed()
    }

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
