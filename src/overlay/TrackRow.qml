pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Theme

// A track to choose, ticked while it is the chosen one.
PanelRow {
    id: row

    required property string name
    required property string details // may be empty
    required property bool isSelected

    topPadding: Theme.trackRise
    bottomPadding: Theme.trackRise
    // What shows where the pointer is reaches a little further than the text.
    outset: Theme.trackOutset
    // A press changes it only through the player.
    checkable: true
    checked: isSelected
    onToggled: checked = Qt.binding(() => isSelected)
    Accessible.role: Accessible.RadioButton
    Accessible.name: name
    Accessible.description: details

    contentItem: Row {
        spacing: Theme.trackSpacing

        Symbol {
            objectName: "checkmark"
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.checkmarkWidth
            opacity: row.isSelected ? 1 : 0
            name: "checkmark"
            size: Theme.rowSymbolSize
            color: Theme.overlayText
        }

        Column {
            anchors.verticalCenter: parent.verticalCenter
            width: row.availableWidth - Theme.checkmarkWidth - Theme.trackSpacing
            spacing: Theme.detailsSpacing

            OneLine {
                width: parent.width
                content: row.name
                font: Theme.panelText
                color: Theme.overlayText
                elide: Text.ElideRight
            }

            OneLine {
                objectName: "details"
                width: parent.width
                visible: row.details !== ""
                content: row.details
                font: Theme.panelCaption
                color: Theme.secondaryText
                elide: Text.ElideRight
            }
        }
    }
}
