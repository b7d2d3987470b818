pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Glass
import Tromelo.Player
import Tromelo.Theme

// Lies over the video, takes all input there and holds the player's floating views.
PlayerOverlayItem {
    id: overlay

    required property PlaybackModel playback
    required property PlayerChrome chrome
    required property PlayerWindowController player
    // What lies under the views: the video, where it can be sampled.
    property EngineWindowItem backdrop: null
    // Of the film; none where nobody makes them.
    property PictureSource pictures: null

    // A panel, the menu, or the list of speeds.
    readonly property bool hasOpen: chrome.panel >= 0 || chrome.showsSpeeds
    readonly property real insetWidth: width - 2 * Theme.overlayInset
    readonly property real insetHeight: height - 2 * Theme.overlayInset

    objectName: "playerOverlay"
    input: overlayInput
    chromeItem: floating
    controls: controlBar

    // The video is drawn in the scene for as long as glass is to blur it.
    Binding {
        target: overlay.backdrop
        property: "isRead"
        value: Glass.blurs && (floating.visible || toast.visible || startOver.visible || keptPicture.visible || overlay.hasOpen)
    }

    PlayerOverlayInput {
        id: overlayInput

        anchors.fill: parent
        onMenuRequested: place => menu.openAt(place)

        TapHandler {
            acceptedDevices: PointerDevice.TouchScreen
            onLongPressed: menu.openAt(point.position)
        }
    }

    // These fade together.
    Item {
        id: floating

        objectName: "playerChrome"
        anchors.fill: parent

        // Ends the player and goes back to the library.
        PushButton {
            id: closeButton

            objectName: "playerCloseButton"
            look: Theme.closeButton
            backdrop: overlay.backdrop
            x: Theme.overlayMargin
            y: Theme.overlayMargin
            symbol: "xmark"
            text: overlay.chrome.isMini ? "" : qsTr("Close")
            tip: PlayerActions.tip(PlayerActions.ClosePlayer)
            tipBelow: true
            Accessible.name: Wording.withoutKey(tip)
            onClicked: overlay.player.close()
        }

        PlayerSignalBadge {
            id: badge
            visible: !overlay.chrome.isMini
            backdrop: overlay.backdrop
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Theme.overlayMargin
            width: Math.min(implicitWidth, overlay.width - Theme.overlayMargin - Theme.badgeGap - closeButton.x - closeButton.width)
            playback: overlay.playback
        }

        Loader {
            active: overlay.chrome.showsInfo
            visible: active
            anchors.right: badge.right
            anchors.top: badge.bottom
            anchors.topMargin: Theme.infoGap
            height: Math.min(implicitHeight, controlBar.y - Theme.infoGap - y)

            sourceComponent: PlayerInfoPanel {
                backdrop: overlay.backdrop
                playback: overlay.playback
            }
        }

        PlayerControlBar {
            id: controlBar
            visible: !overlay.chrome.isMini
            backdrop: overlay.backdrop
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.controlBarMargin
            width: Math.min(implicitWidth, overlay.insetWidth)
            playback: overlay.playback
            chrome: overlay.chrome
            onFullscreenToggled: overlay.player.toggleFullscreen()
        }

        // All that there is in a mini player, beside the button that closes it.
        PushButton {
            objectName: "miniPlayPause"
            look: Theme.closeButton
            backdrop: overlay.backdrop
            visible: overlay.chrome.isMini
            anchors.centerIn: parent
            symbol: overlay.playback.isPaused ? "play.fill" : "pause.fill"
            symbolSize: Theme.playSymbolSize
            tip: PlayerActions.tip(overlay.playback.isPaused ? PlayerActions.Play : PlayerActions.Pause)
            onClicked: overlay.playback.togglePlayback()
        }

        MomentPreview {
            backdrop: overlay.backdrop
            playback: overlay.playback
            bar: controlBar
            room: Qt.size(overlay.width, overlay.height)
            pictures: overlay.pictures
            isCovered: overlay.hasOpen
        }
    }

    PlayerPanels {
        anchors.fill: parent
        playback: overlay.playback
        chrome: overlay.chrome
        bar: controlBar
        buttons: controlBar.panelButtons
        backdrop: overlay.backdrop
    }

    PlayerToast {
        id: toast
        backdrop: overlay.backdrop
        anchors.horizontalCenter: parent.horizontalCenter
        y: Theme.controlBarMargin
        width: Math.min(implicitWidth, overlay.insetWidth)
        chrome: overlay.chrome
    }

    PlayerOffer {
        id: startOver

        objectName: "startOver"
        visible: overlay.chrome.offersStartOver
        reason: toast
        symbol: "arrow.counterclockwise"
        text: qsTr("Start Over")
        tip: PlayerActions.tip(PlayerActions.StartOver)
        onClicked: overlay.player.startOver()
    }

    PlayerOffer {
        id: keptPicture

        objectName: "keptPicture"
        visible: overlay.chrome.offersPicture
        reason: toast
        symbol: "folder"
        text: Wording.shown(qsTr("Show in Finder"))
        tip: text
        onClicked: overlay.player.showPicture()
    }

    Loader {
        id: menu

        property point place: Qt.point(width / 2, height / 2)

        function openAt(place: point) {
            menu.place = place;
            overlay.chrome.showsMenu = true;
        }

        anchors.fill: parent
        active: overlay.chrome.showsMenu
        onLoaded: (item as PlayerMenu).popup(menu, place.x, place.y)

        sourceComponent: PlayerMenu {
            player: overlay.player
            backdrop: overlay.backdrop
            onClosed: {
                menu.place = Qt.binding(() => Qt.point(menu.width / 2, menu.height / 2));
                overlay.chrome.showsMenu = false;
            }
        }
    }

    Loader {
        anchors.fill: parent
        active: overlay.chrome.showsShortcuts

        sourceComponent: Item {
            PlayerShortcutsPanel {
                backdrop: overlay.backdrop
                anchors.centerIn: parent
                width: Math.min(implicitWidth, overlay.insetWidth)
                height: Math.min(implicitHeight, overlay.insetHeight)
                chrome: overlay.chrome
            }
        }
    }
}
