pragma ComponentBehavior: Bound

import QtQuick

// Two crossed strokes.
Item {
    id: glyph

    required property color color

    implicitWidth: 9
    implicitHeight: 9

    Repeater {
        model: [-45, 45]

        Rectangle {
            required property real modelData

            anchors.centerIn: parent
            width: 11
            height: 1.8
            radius: height / 2
            color: glyph.color
            rotation: modelData
            antialiasing: true
        }
    }
}
