pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Glass
import Tromelo.Player
import Tromelo.Theme

// Shows a panel above its button in the control bar while the panel is open. It lies over the whole
// overlay: a press on the bar is the bar's own, any other outside the panel dismisses it and does
// nothing else, a press or scrolling on the panel stays there. The panel is made when it opens and is
// as large as its implicit size or, where that doesn't fit, as the room above the bar. Only what is
// typed into takes the keyboard, and gives it back when the panel closes.
Item {
    id: popover

    required property Item bar
    required property Item button // none before the bar has it
    required property bool isOpen
    required property string body // the type of the panel
    required property PlaybackModel playback
    required property string name
    property Item backdrop: null

    signal dismissed

    anchors.fill: parent
    visible: isOpen || opacity > 0
    opacity: isOpen ? 1 : 0
    onIsOpenChanged: if (!isOpen)
        loader.focus = false

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.quick
        }
    }

    MouseArea {
        anchors.fill: parent
        enabled: popover.isOpen
        acceptedButtons: Qt.AllButtons
        onPressed: mouse => {
            mouse.accepted = !popover.bar.contains(mapToItem(popover.bar, mouse.x, mouse.y));
            if (mouse.accepted)
                popover.dismissed();
        }
    }

    Loader {
        id: loader

        anchors.fill: parent
        active: popover.visible && popover.button

        sourceComponent: Item {
            PopoverBody {
                objectName: "playerPopover"
                bar: popover.bar
                button: popover.button
                margin: Theme.popoverMargin
                gap: Theme.popoverGap
                implicitWidth: content.implicitWidth
                implicitHeight: content.implicitHeight
                Accessible.role: Accessible.Pane
                Accessible.name: popover.name

                // It can lie on other views, whose texts must not mix with its own.
                Rectangle {
                    anchors.fill: parent
                    radius: Theme.popoverRadius
                    color: Theme.popoverBacking
                }

                GlassSurface {
                    anchors.fill: parent
                    backdrop: popover.backdrop
                    radius: Theme.popoverRadius
                }

                MouseArea {
                    anchors.fill: parent
                    acceptedButtons: Qt.AllButtons
                    onWheel: wheel => wheel.accepted = true
                }

                Loader {
                    id: content

                    anchors.fill: parent
                    Component.onCompleted: setSource(popover.body + ".qml", {
                        playback: popover.playback
                    })
                }

                Connections {
                    target: content.item
                    ignoreUnknownSignals: true

                    function onFinished() {
                        popover.dismissed();
                    }
                }
            }
        }
    }
}
