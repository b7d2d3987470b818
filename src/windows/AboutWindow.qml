pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Tromelo.Controls
import Tromelo.Theme

// What the program is, and what it runs on.
Window {
    id: window

    required property AboutFacts facts

    title: qsTr("About Tromelo")
    color: Theme.backdrop
    width: Theme.settingsWidth
    height: content.implicitHeight + 2 * Theme.margin
    minimumWidth: width
    maximumWidth: width
    minimumHeight: content.implicitHeight + 2 * Theme.margin
    maximumHeight: content.implicitHeight + 2 * Theme.margin

    FocusScope {
        width: parent.width
        height: parent.height
        focus: true
        Keys.onEscapePressed: window.close()
        Keys.onPressed: event => {
            if (event.key === Qt.Key_W && event.modifiers === Qt.ControlModifier)
                window.close();
        }

        // Lines come when they are known, and not every host lets the window grow with them.
        ColumnLayout {
            id: content

            anchors.fill: parent
            anchors.margins: Theme.margin
            spacing: Theme.spacing

            Text {
                text: qsTr("Tromelo")
                font: Theme.title
                color: Theme.primaryText
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            Text {
                text: window.facts.version + "\n" + qsTr("Free software under the GNU General Public License, version 3 or later.")
                font: Theme.panelText
                color: Theme.secondaryText
                lineHeight: 1.3
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }

            Flickable {
                Layout.fillWidth: true
                Layout.fillHeight: true
                implicitHeight: details.implicitHeight
                contentHeight: details.implicitHeight
                interactive: contentHeight > height
                boundsBehavior: Flickable.StopAtBounds
                clip: interactive

                TextEdit {
                    id: details

                    objectName: "aboutDetails"
                    width: content.width
                    text: window.facts.details
                    textFormat: TextEdit.PlainText
                    font: Theme.panelText
                    color: Theme.primaryText
                    selectionColor: Theme.fieldOn
                    selectedTextColor: Theme.primaryText
                    readOnly: true
                    selectByMouse: true
                    activeFocusOnTab: true
                    wrapMode: TextEdit.Wrap
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text

                    FocusRing {
                        distance: Theme.fieldSide
                        visible: details.activeFocus
                        radius: Theme.fieldRadius
                    }
                }
            }

            PushButton {
                objectName: "aboutCopy"
                focus: true
                text: qsTr("Copy")
                tip: qsTr("Copy all of this for a bug report")
                Accessible.description: tip
                onClicked: window.facts.copy()
            }
        }
    }
}
