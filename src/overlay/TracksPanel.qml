pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Tromelo.Controls
import Tromelo.Player
import Tromelo.Settings
import Tromelo.Theme

// What is heard and read, when, and in which style.
Flickable {
    id: panel

    required property PlaybackModel playback

    objectName: "tracksPanel"
    implicitWidth: Theme.tracksWidth
    implicitHeight: Math.min(contentHeight, Theme.tracksHeight)
    contentHeight: sections.implicitHeight + 2 * Theme.panelPadding
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    T.ScrollBar.vertical: ThinScrollBar {}

    // Things that belong together under a title.
    component Section: Column {
        id: section

        required property string title

        width: parent.width
        spacing: Theme.groupedSpacing
        Accessible.role: Accessible.Grouping
        Accessible.name: title

        Text {
            text: section.title
            font: Theme.panelSection
            color: Theme.secondaryText
            Accessible.role: Accessible.Heading
            Accessible.name: section.title
        }
    }

    Column {
        id: sections

        x: Theme.panelPadding
        y: Theme.panelPadding
        width: panel.width - 2 * Theme.panelPadding
        spacing: Theme.sectionSpacing

        Section {
            objectName: "subtitlesSection"
            title: qsTr("Subtitles")

            TrackList {
                width: parent.width
                tracks: panel.playback.subtitleTracks
                offersNone: true
                onNoneChosen: panel.playback.turnSubtitlesOff()
                onChosen: track => panel.playback.selectSubtitle(track)
            }

            PushButton {
                objectName: "addSubtitleFile"
                look: Theme.panelButton
                leftPadding: 0
                symbol: "plus"
                text: qsTr("Add Subtitle File…")
                onClicked: panel.playback.presentSubtitleFilePanel()
            }

            DelayRow {
                objectName: "subtitleTiming"
                width: parent.width
                label: qsTr("Timing")
                delay: panel.playback.subtitleDelay
                onChosen: seconds => panel.playback.setSubtitleDelay(seconds)
            }

            CodingRow {
                width: parent.width
                coding: panel.playback.subtitleCoding
            }
        }

        Section {
            objectName: "audioSection"
            visible: panel.playback.audioTracks.length > 0
            title: qsTr("Audio")

            TrackList {
                width: parent.width
                tracks: panel.playback.audioTracks
                onChosen: track => panel.playback.selectAudio(track)
            }

            DelayRow {
                objectName: "audioSync"
                width: parent.width
                label: qsTr("Sync")
                delay: panel.playback.audioDelay
                onChosen: seconds => panel.playback.setAudioDelay(seconds)
            }
        }

        Section {
            objectName: "subtitleStyleSection"
            title: qsTr("Subtitle Style")

            SubtitleStyleControls {
                width: parent.width
                settings: panel.playback.settings
                focusPolicy: Qt.NoFocus
            }

            PushButton {
                objectName: "resetStyle"
                look: Theme.panelButton
                leftPadding: 0
                text: qsTr("Reset Style")
                onClicked: panel.playback.settings.resetSubtitleStyle()
            }
        }
    }
}
