pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Theme

// A bookmark: a press goes there. F2 or the pencil renames it in its place.
PanelRow {
    id: row

    required property string name
    required property real position
    property bool isEdited: false
    property bool returns: false // the keyboard, to the row, once it isn't edited any more

    signal renamed(string name)
    signal removed

    function edit() {
        returns = activeFocus;
        isEdited = true;
    }
    function leave() {
        isEdited = false;
        if (returns)
            forceActiveFocus(Qt.TabFocusReason);
    }

    outset: -Theme.listPadding
    leftPadding: Theme.listPadding + Theme.rowSide
    rightPadding: Theme.listPadding + Theme.rowSide
    topPadding: Theme.rowRise
    bottomPadding: Theme.rowRise
    focusPolicy: Qt.TabFocus
    Accessible.name: name
    Accessible.description: Format.clock(position)
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()
    Keys.onDeletePressed: removed()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F2;
        if (event.accepted)
            edit();
    }

    contentItem: RowLayout {
        spacing: Theme.rowSpacing

        Symbol {
            Layout.preferredWidth: Theme.chapterNumberWidth
            name: "bookmark.fill"
            size: Theme.rowSymbolSize
            color: Theme.secondaryText
        }

        OneLine {
            objectName: "bookmarkName"
            Layout.fillWidth: true
            visible: !row.isEdited
            content: row.name
            font: Theme.panelText
            color: Theme.overlayText
            elide: Text.ElideRight
        }

        Loader {
            id: editor

            Layout.fillWidth: true
            Layout.preferredHeight: Theme.rowEntryHeight
            Layout.topMargin: -Theme.fieldInset
            Layout.bottomMargin: -Theme.fieldInset
            visible: active
            active: row.isEdited

            sourceComponent: EntryField {
                objectName: "bookmarkField"
                name: qsTr("Name of the bookmark")
                font: Theme.panelText
                text: row.name
                maximumLength: Theme.nameLength
                onAccepted: {
                    row.renamed(text);
                    row.leave();
                }
                onActiveFocusChanged: if (!activeFocus && row.isEdited) {
                    row.renamed(text);
                    row.isEdited = false;
                }
                Keys.onEscapePressed: row.leave()
                Component.onCompleted: {
                    forceActiveFocus(Qt.OtherFocusReason);
                    selectAll();
                }
            }
        }

        Text {
            objectName: "bookmarkTime"
            text: Format.clock(row.position)
            font: Theme.panelTime
            color: Theme.secondaryText
        }

        PushButton {
            objectName: "renameBookmark"
            look: Theme.panelButton
            topPadding: 0
            symbol: "pencil"
            tint: Theme.secondaryText
            tip: qsTr("Rename (F2)")
            Accessible.description: row.name
            onClicked: row.edit()
        }

        PushButton {
            objectName: "removeBookmark"
            look: Theme.panelButton
            topPadding: 0
            symbol: "xmark.circle.fill"
            tint: Theme.secondaryText
            tip: qsTr("Remove (Delete)")
            Accessible.description: row.name
            onClicked: row.removed()
        }
    }
}
