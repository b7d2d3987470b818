pragma ComponentBehavior: Bound

import QtQuick

// Lies over the video and takes all input there.
Item {
    id: overlay

    signal doubleClicked
    signal filesDropped(files: list<url>)

    objectName: "playerOverlay"

    MouseArea {
        anchors.fill: parent
        onDoubleClicked: overlay.doubleClicked()
    }

    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: drop => {
            overlay.filesDropped(drop.urls);
            drop.accept(Qt.CopyAction);
        }
    }
}
