pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import QtQuick.Templates as T
import Tromelo.Theme

// Says what a press on it does.
T.Button {
    id: button

    required property bool isPaused

    objectName: "playerPlayPause"
    implicitWidth: 44
    implicitHeight: 36
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    opacity: down ? 0.6 : hovered ? 1 : 0.9
    Accessible.name: isPaused ? qsTr("Play") : qsTr("Pause")

    contentItem: Item {
        Shape {
            anchors.centerIn: parent
            visible: button.isPaused
            width: 17
            height: 20
            preferredRendererType: Shape.CurveRenderer

            ShapePath {
                fillColor: Theme.overlayText
                strokeColor: Theme.overlayText
                strokeWidth: 2
                joinStyle: ShapePath.RoundJoin
                startX: 2
                startY: 2

                PathLine { x: 16; y: 10 }
                PathLine { x: 2; y: 18 }
                PathLine { x: 2; y: 2 }
            }
        }

        Row {
            anchors.centerIn: parent
            visible: !button.isPaused
            spacing: 5

            Repeater {
                model: 2

                Rectangle {
                    width: 5
                    height: 20
                    radius: 1.5
                    color: Theme.overlayText
                }
            }
        }
    }
}
