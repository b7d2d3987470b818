pragma ComponentBehavior: Bound

import QtQuick
import Tromelo.Controls
import Tromelo.Theme

// The controls for how subtitles are drawn.
Column {
    id: controls

    required property PlayerSettings settings
    // Holds for all of these controls: those in the player never take the keyboard.
    property int focusPolicy: Qt.StrongFocus

    spacing: Theme.settingSpacing

    SettingRow {
        label: qsTr("Font")

        Picker {
            objectName: "subtitleFont"
            focusPolicy: controls.focusPolicy
            model: controls.settings.fonts
            currentIndex: controls.settings.fonts.indexOf(controls.settings.subtitleFont)
            displayText: controls.settings.subtitleFont
            Accessible.name: qsTr("Font")
            onActivated: index => controls.settings.subtitleFont = controls.settings.fonts[index]
        }

        PushButton {
            objectName: "subtitleBold"
            focusPolicy: controls.focusPolicy
            checkable: true
            text: qsTr("Bold")
            checked: controls.settings.subtitleBold
            Accessible.onPressAction: press()
            Accessible.onToggleAction: press()
            onToggled: controls.settings.subtitleBold = checked
        }
    }

    SettingRow {
        id: sizeRow

        label: qsTr("Size")

        StepSlider {
            objectName: "subtitleSize"
            width: controls.width - Theme.settingLabelWidth - Theme.sizeTextWidth - 2 * sizeRow.spacing
            focusPolicy: controls.focusPolicy
            from: 24
            to: 80
            stepSize: 2
            shown: controls.settings.subtitleSize
            Accessible.name: qsTr("Size")
            onChosen: value => controls.settings.subtitleSize = value
        }

        Text {
            objectName: "subtitleSizeText"
            width: Theme.sizeTextWidth
            height: parent.height
            text: Math.trunc(controls.settings.subtitleSize)
            font: Theme.fieldNumber
            color: Theme.secondaryText
            verticalAlignment: Text.AlignVCenter
        }
    }

    SettingRow {
        id: colorRow

        label: qsTr("Color")

        Repeater {
            model: controls.settings.colorPresets

            ColorSwatch {
                required property rgbaColor modelData
                required property int index

                objectName: "subtitleColorPreset"
                anchors.verticalCenter: parent.verticalCenter
                focusPolicy: controls.focusPolicy
                color: modelData.color
                tip: qsTr("Use this color")
                Accessible.name: controls.settings.colorPresetNames[index]
                Accessible.description: tip
                onClicked: controls.settings.subtitleColor = modelData
            }
        }

        ColorWell {
            objectName: "subtitleColor"
            focusPolicy: controls.focusPolicy
            text: qsTr("Custom color")
            color: controls.settings.subtitleColor.color
            onChosen: color => controls.settings.subtitleColor = color
        }
    }

    SettingRow {
        label: qsTr("Style")

        SegmentedPicker {
            objectName: "subtitleBorderStyle"
            focusPolicy: controls.focusPolicy
            labels: controls.settings.borderStyleLabels
            current: controls.settings.subtitleBorderStyleIndex
            Accessible.name: qsTr("Style")
            onChosen: index => controls.settings.subtitleBorderStyleIndex = index
        }

        ColorWell {
            objectName: "subtitleOutlineColor"
            visible: controls.settings.subtitlesHaveEdge
            focusPolicy: controls.focusPolicy
            text: qsTr("Edge color")
            color: controls.settings.subtitleOutlineColor.color
            tip: qsTr("Outline and shadow color")
            onChosen: color => controls.settings.subtitleOutlineColor = color
        }
    }

    CheckToggle {
        objectName: "subtitleOverridesStyled"
        width: controls.width
        focusPolicy: controls.focusPolicy
        text: qsTr("Also restyle styled (ASS) subtitles")
        checked: controls.settings.subtitleOverridesStyled
        tip: qsTr("Styled subtitles keep their own look unless this is on.")
        onToggled: controls.settings.subtitleOverridesStyled = checked
    }
}
