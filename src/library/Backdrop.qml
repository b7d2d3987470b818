pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// Two faint lights in the dark.
Rectangle {
    id: backdrop

    color: Theme.backdrop

    ShaderEffect {
        readonly property real topRadius: Theme.glowTopRadius
        readonly property real bottomRadius: Theme.glowBottomRadius
        readonly property size paneSize: Qt.size(width, height)
        readonly property point topCenter: Theme.glowTopCenter
        readonly property point bottomCenter: Theme.glowBottomCenter
        readonly property color base: backdrop.color
        readonly property color topGlow: Theme.glowTop
        readonly property color bottomGlow: Theme.glowBottom

        anchors.fill: parent
        fragmentShader: "backdrop.frag.qsb"
    }
}
