pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Theme

// Blurs what is behind it, at a quarter of its size, as often as that changes.
Item {
    id: pane

    required property Item backdrop
    required property real radius
    property real place: 0
    // How much brighter it is than at rest.
    property real light: 0

    Behavior on light {
        NumberAnimation {
            duration: Theme.quick
        }
    }

    function refresh() {
        capture.sourceRect = pane.mapToItem(pane.backdrop, -Theme.glassReach, -Theme.glassReach, pane.width + 2 * Theme.glassReach, pane.height + 2 * Theme.glassReach);
        capture.scheduleUpdate();
    }

    Connections {
        target: pane.backdrop
        enabled: pane.visible
        ignoreUnknownSignals: true

        function onPictureCommitted() {
            pane.refresh();
        }
        function onWidthChanged() {
            Qt.callLater(pane.refresh);
        }
        function onHeightChanged() {
            Qt.callLater(pane.refresh);
        }
    }

    onPlaceChanged: if (visible && backdrop)
        Qt.callLater(refresh)
    onVisibleChanged: if (visible && backdrop)
        refresh()
    onWidthChanged: if (visible && backdrop)
        Qt.callLater(refresh)
    onHeightChanged: if (visible && backdrop)
        Qt.callLater(refresh)
    Component.onCompleted: if (visible && backdrop)
        Qt.callLater(refresh)

    ShaderEffectSource {
        id: capture
        visible: false
        live: false
        sourceItem: pane.backdrop
        textureSize: Qt.size(Math.ceil(sourceRect.width * Theme.glassDetail), Math.ceil(sourceRect.height * Theme.glassDetail))
        mipmap: true
    }

    ShaderEffect {
        id: blur

        readonly property size paneSize: Qt.size(pane.width, pane.height)
        readonly property real reach: Theme.glassReach
        readonly property ShaderEffectSource behind: capture

        anchors.fill: parent
        visible: false
        fragmentShader: "blur.frag.qsb"
        supportsAtlasTextures: false
    }

    ShaderEffectSource {
        id: blurred
        visible: false
        sourceItem: blur
        textureSize: Qt.size(Math.ceil(pane.width * Theme.glassDetail), Math.ceil(pane.height * Theme.glassDetail))
        smooth: true
    }

    ShaderEffect {
        readonly property size paneSize: Qt.size(pane.width, pane.height)
        readonly property real corner: Math.min(pane.radius, pane.height / 2, pane.width / 2)
        readonly property real light: pane.light
        readonly property real blurs: pane.backdrop ? 1 : 0
        readonly property color tint: Theme.glassTint
        readonly property real lightCover: Theme.glassLightCover
        readonly property ShaderEffectSource behind: blurred

        anchors.fill: parent
        fragmentShader: "glass.frag.qsb"
        supportsAtlasTextures: false
    }
}
