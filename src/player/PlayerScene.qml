pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player

// What the player window shows: the engine's picture on black. The overlay is laid on top.
Item {
    id: scene

    readonly property EngineWindowItem video: picture

    objectName: "playerScene"

    Rectangle {
        anchors.fill: parent
        color: "black"
    }

    EngineWindowItem {
        id: picture
        objectName: "playerVideo"
        anchors.fill: parent
    }
}
