pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Player

// What the player window shows: the engine's picture on black. The overlay is laid on top. While it
// fades, all of it is drawn first and faded as one: each by itself would let the black through.
PlayerSceneItem {
    id: scene

    video: picture
    objectName: "playerScene"
    layer.enabled: opacity < 1

    PictureSurround {
        anchors.fill: parent
        hole: picture.hole
    }

    EngineWindowItem {
        id: picture
        anchors.fill: parent
        sceneOpacity: scene.opacity
    }
}
