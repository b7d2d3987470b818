pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Theme

// The row of the queue that is being dragged, under the pointer, and a mark where it would go.
Item {
    id: lifted

    required property RowDrag drag
    required property string title

    anchors.fill: parent
    visible: drag.isOn
    clip: true

    Rectangle {
        objectName: "insertionMark"
        x: Theme.listPadding
        y: lifted.drag.gapY - height / 2
        width: parent.width - 2 * x
        height: Theme.insertionMark
        radius: height / 2
        color: Theme.accent
    }

    Rectangle {
        objectName: "liftedRow"
        x: Theme.listPadding
        y: lifted.drag.rowY
        width: parent.width - 2 * x
        height: label.implicitHeight + 2 * Theme.rowRise
        radius: Theme.rowRadius
        color: Theme.liftedRow
        border.width: Theme.hairline
        border.color: Theme.overlayEdge

        Symbol {
            id: symbol

            x: Theme.rowSide
            width: Theme.queueSymbolWidth
            height: parent.height
            name: "film"
            size: Theme.rowSymbolSize
            color: Theme.secondaryText
        }

        OneLine {
            id: label

            anchors.left: symbol.right
            anchors.leftMargin: Theme.rowSpacing
            anchors.right: parent.right
            anchors.rightMargin: Theme.rowSide
            anchors.verticalCenter: parent.verticalCenter
            content: lifted.title
            font: Theme.panelText
            color: Theme.overlayText
        }
    }
}
