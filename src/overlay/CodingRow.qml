pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// How the characters of a file of subtitles are coded. Where there is nothing to choose, it says why.
T.AbstractButton {
    id: row

    required property SubtitleCoding coding

    implicitHeight: content.implicitHeight
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.Grouping
    Accessible.name: label.text
    Accessible.description: coding.note

    RowLayout {
        id: content

        anchors.fill: parent
        spacing: Theme.trackSpacing

        Text {
            id: label

            Layout.fillWidth: true
            text: qsTr("Encoding")
            font: Theme.panelText
            color: Theme.secondaryText
        }

        Picker {
            objectName: "encoding"
            enabled: row.coding.note === ""
            opacity: enabled ? 1 : Theme.disabledOpacity
            focusPolicy: Qt.NoFocus
            model: row.coding.names
            currentIndex: row.coding.chosen
            Accessible.name: label.text
            onActivated: index => {
                row.coding.choose(index);
                currentIndex = Qt.binding(() => row.coding.chosen);
            }
        }
    }

    HoverTip {
        control: row
        tip: row.coding.note
    }
}
