pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// One of several texts, shown in a list that opens. A press outside the list closes it and does
// nothing else.
T.ComboBox {
    id: picker

    font: Theme.field
    implicitWidth: Theme.fontPickerWidth
    implicitHeight: Theme.fieldHeight
    leftPadding: Theme.fieldSide
    rightPadding: Theme.fieldSide + chevrons.width
    hoverEnabled: true
    // The wheel scrolls the page that it is on.
    wheelEnabled: false
    Keys.onReturnPressed: popup.open()
    Keys.onEnterPressed: popup.open()
    Accessible.description: displayText
    Accessible.onPressAction: popup.open()

    contentItem: Text {
        text: picker.displayText
        textFormat: Text.PlainText
        font: picker.font
        color: Theme.primaryText
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    indicator: Symbol {
        id: chevrons

        x: picker.width - width - Theme.fieldSide / 2
        height: picker.height
        name: "chevron.up.chevron.down"
        size: Theme.fieldSymbolSize - 2
        color: Theme.secondaryText
    }

    background: Rectangle {
        radius: Theme.fieldRadius
        color: picker.down ? Theme.fieldPressed : picker.hovered ? Theme.fieldHovered : Theme.fieldSurface
        border.width: picker.visualFocus ? Theme.focusWidth : Theme.hairline
        border.color: picker.visualFocus ? Theme.accent : Theme.fieldEdge
    }

    delegate: T.ItemDelegate {
        id: entry

        required property int index
        required property string modelData

        objectName: "choice" + modelData
        width: ListView.view.width
        implicitHeight: Theme.fieldHeight
        leftPadding: Theme.fieldSide
        focusPolicy: Qt.NoFocus
        hoverEnabled: true
        highlighted: picker.highlightedIndex === index
        text: modelData
        font: picker.font
        Accessible.name: text
        Accessible.selected: index === picker.currentIndex
        Accessible.onPressAction: click()

        contentItem: Text {
            text: entry.text
            textFormat: Text.PlainText
            font: entry.font
            color: Theme.primaryText
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }

        background: Rectangle {
            radius: Theme.fieldRadius - Theme.fieldInset
            color: entry.highlighted ? Theme.fieldOn : entry.index === picker.currentIndex ? Theme.rowHovered : "transparent"
        }
    }

    popup: T.Popup {
        y: picker.height + Theme.fieldInset
        width: picker.width
        height: Math.min(Theme.fieldListHeight, implicitContentHeight + topPadding + bottomPadding)
        padding: Theme.fieldInset * 2
        margins: Theme.popoverMargin
        modal: true
        dim: false
        onClosed: if (focus)
            picker.forceActiveFocus(Qt.PopupFocusReason)
        focus: picker.focusPolicy !== Qt.NoFocus

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: picker.delegateModel
            currentIndex: picker.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds

            T.ScrollBar.vertical: ThinScrollBar {}

            // While the list is open the key closes it, whatever else in the window listens for it.
            Shortcut {
                enabled: picker.popup.visible
                sequence: "Escape"
                onActivated: picker.popup.close()
            }
        }

        background: Rectangle {
            radius: Theme.fieldRadius + Theme.fieldInset
            color: Theme.fieldList
            border.width: Theme.hairline
            border.color: Theme.fieldEdge
        }
    }
}
