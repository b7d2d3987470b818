pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Theme

// A line of text to be typed. In a player's window nothing that is typed here is taken for one of the
// player's keys.
T.TextField {
    id: field

    required property string name

    implicitWidth: Theme.entryWidth
    implicitHeight: Theme.entryHeight
    leftPadding: Theme.fieldSide
    rightPadding: Theme.fieldSide
    font: Theme.panelNumber
    color: Theme.overlayText
    selectionColor: Theme.fieldOn
    selectedTextColor: Theme.primaryText
    placeholderTextColor: Theme.infoLabel
    verticalAlignment: TextInput.AlignVCenter
    clip: true
    Accessible.name: name

    background: Rectangle {
        radius: Theme.fieldRadius
        color: Theme.fieldSurface
        border.width: field.activeFocus ? Theme.focusWidth : Theme.hairline
        border.color: field.activeFocus ? Theme.accent : Theme.fieldEdge

        Text {
            x: field.leftPadding
            width: parent.width - field.leftPadding - field.rightPadding
            height: parent.height
            visible: field.length === 0 && field.preeditText === ""
            text: field.placeholderText
            textFormat: Text.PlainText
            font: field.font
            color: field.placeholderTextColor
            elide: Text.ElideRight
            verticalAlignment: Text.AlignVCenter
        }
    }
}
