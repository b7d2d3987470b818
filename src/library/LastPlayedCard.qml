pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Glass
import Tromelo.Player
import Tromelo.Theme

// The video that was played last, and how to play it again.
GlassSurface {
    id: card

    required property PlaybackModel playback

    implicitHeight: rows.implicitHeight + 2 * Theme.cardPadding
    radius: Theme.cardRadius
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Last played")

    FilmPlace {
        id: place

        films: card.playback.films
        file: card.playback.lastURL
        shown: card.Window.visibility !== Window.Hidden
    }

    // A fact about a video in one or two words.
    component Chip: GlassSurface {
        id: chip

        required property string text
        property bool highlighted: false

        backdrop: card.backdrop
        implicitWidth: words.implicitWidth + 2 * Theme.chipPadding
        implicitHeight: words.implicitHeight + 2 * Theme.chipRise
        Accessible.role: Accessible.StaticText
        Accessible.name: text

        Text {
            id: words

            objectName: "chipText"
            anchors.centerIn: parent
            text: chip.text
            textFormat: Text.PlainText
            font: Theme.chip
            color: chip.highlighted ? Theme.gold : Theme.primaryText
        }
    }

    Column {
        id: rows

        anchors.fill: parent
        anchors.margins: Theme.cardPadding
        spacing: Theme.cardSpacing

        Column {
            width: parent.width
            spacing: Theme.headingSpacing

            Text {
                objectName: "cardLabel"
                text: qsTr("LAST PLAYED")
                font: Theme.cardLabel
                color: Theme.secondaryText
                Accessible.ignored: true
            }

            Text {
                objectName: "cardTitle"
                width: parent.width
                text: card.playback.title
                textFormat: Text.PlainText
                font: Theme.cardTitle
                color: Theme.primaryText
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            SeenBar {
                objectName: "cardSeen"
                visible: place.seen > 0
                width: parent.width
                place: place
            }
        }

        Flow {
            objectName: "cardChips"
            width: parent.width
            spacing: Theme.chipSpacing

            Chip {
                text: card.playback.dynamicRange.label
                highlighted: card.playback.dynamicRange.isHigh
            }
            Chip {
                text: card.playback.videoSize
            }
            Chip {
                text: card.playback.frameRate
            }
            Chip {
                text: card.playback.codec
            }
        }

        Column {
            width: parent.width
            spacing: Theme.detailSpacing

            DetailLine {
                width: parent.width
                label: qsTr("Output")
                value: card.playback.output
            }
            DetailLine {
                width: parent.width
                label: qsTr("Display")
                value: card.playback.display
            }
            DetailLine {
                width: parent.width
                label: qsTr("Decoder")
                value: Wording.shown(card.playback.decoder)
            }
        }

        Flow {
            width: parent.width
            spacing: Theme.cardButtonSpacing

            PushButton {
                objectName: "playAgain"
                look: Theme.prominentButton
                implicitWidth: implicitContentWidth + leftPadding + rightPadding
                symbol: "play.fill"
                text: qsTr("Play Again")
                onClicked: card.playback.openFile(card.playback.lastURL)
            }
            PushButton {
                objectName: "openOther"
                look: Theme.glassButton
                implicitWidth: implicitContentWidth + leftPadding + rightPadding
                backdrop: card.backdrop
                symbol: "folder"
                text: qsTr("Open Other…")
                tip: PlayerActions.tip(PlayerActions.OpenVideos)
                onClicked: card.playback.presentOpenPanel()
            }
        }
    }
}
