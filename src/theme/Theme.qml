pragma Singleton
pragma ComponentBehavior: Bound

import QtQuick

// Every colour, size and font that more than one view uses.
QtObject {
    id: theme

    // Surfaces, from back to front.
    readonly property color backdrop: Qt.rgba(0.035, 0.043, 0.06, 1)
    readonly property color surface: Qt.rgba(1, 1, 1, 0.08)
    readonly property color surfaceHovered: Qt.rgba(1, 1, 1, 0.13)
    readonly property color surfacePressed: Qt.rgba(1, 1, 1, 0.05)
    readonly property color surfaceEdge: Qt.rgba(1, 1, 1, 0.12)

    // Over the video.
    readonly property color overlayEdge: Qt.rgba(1, 1, 1, 0.16)
    readonly property color overlayText: Qt.rgba(1, 1, 1, 0.92)
    readonly property color symbol: Qt.rgba(1, 1, 1, 0.85)
    readonly property color symbolActive: "white"
    readonly property color timeText: Qt.rgba(1, 1, 1, 0.75)
    readonly property real overlayDisabled: 0.35 // opacity
    readonly property color controlActive: Qt.rgba(1, 1, 1, 0.16)
    readonly property color controlHovered: Qt.rgba(1, 1, 1, 0.09)
    readonly property color controlPressed: Qt.rgba(1, 1, 1, 0.24)
    readonly property color sliderRest: Qt.rgba(1, 1, 1, 0.24)
    readonly property color sliderFilled: Qt.rgba(1, 1, 1, 0.92)
    readonly property color knob: "white"
    readonly property color knobHeld: Qt.rgba(0.84, 0.84, 0.86, 1)
    readonly property color knobEdge: Qt.rgba(0, 0, 0, 0.25)
    readonly property color mark: Qt.rgba(1, 1, 1, 0.75)
    readonly property color loopStretch: Qt.rgba(accent.r, accent.g, accent.b, 0.55)
    readonly property color menuSurface: Qt.rgba(0.13, 0.135, 0.15, 0.97)
    readonly property color toolTipSurface: Qt.rgba(0.1, 0.105, 0.12, 0.95)
    readonly property color badgeTitle: Qt.rgba(1, 1, 1, 0.9)
    readonly property color badgeChapter: Qt.rgba(1, 1, 1, 0.6)
    readonly property color tagText: Qt.rgba(0, 0, 0, 0.85)
    readonly property color goldLight: Qt.rgba(1, 0.86, 0.55, 1)
    readonly property color goldDark: Qt.rgba(0.93, 0.7, 0.36, 1)
    readonly property color silverLight: "white"
    readonly property color silverDark: Qt.rgba(0.82, 0.82, 0.82, 1)
    readonly property color infoLabel: Qt.rgba(1, 1, 1, 0.45)
    readonly property color infoValue: Qt.rgba(1, 1, 1, 0.88)
    readonly property color infoDivider: Qt.rgba(1, 1, 1, 0.08)

    readonly property color primaryText: Qt.rgba(1, 1, 1, 0.92)
    readonly property color secondaryText: Qt.rgba(1, 1, 1, 0.58)
    // Translucent surfaces, as a plain material and as glass.
    readonly property color material: Qt.rgba(0.07, 0.075, 0.09, 0.8)
    readonly property color materialEdge: Qt.rgba(1, 1, 1, 0.1)
    readonly property real hairline: 1
    readonly property color glassTint: Qt.rgba(0.028, 0.032, 0.045, 0.58) // how much it covers
    readonly property real glassLightCover: 0.78 // over white
    readonly property real glassHovered: 0.06 // light that is added
    readonly property real glassPressed: -0.04
    readonly property real glassReach: 28 // how far around what is behind blurs into a point
    readonly property real glassDetail: 0.25 // of what is behind, for its blur

    readonly property color warning: "#ff9f0a"
    readonly property color accent: "#4aa8ff"
    readonly property color accentHovered: "#62b4ff"
    readonly property color accentPressed: "#3a93e6"
    readonly property color onAccent: Qt.rgba(0.02, 0.05, 0.1, 0.95) // text that lies on it

    readonly property string fontFamily: "Inter"
    readonly property font title: ({ family: fontFamily, pixelSize: 34, weight: Font.DemiBold })
    readonly property font body: ({ family: fontFamily, pixelSize: 14 })

    // Over the video. Digits are equally wide, so that nothing jitters while they change.
    readonly property font overlayTitle: ({ family: fontFamily, pixelSize: 12, weight: Font.DemiBold })
    readonly property font overlayChapter: ({ family: fontFamily, pixelSize: 10, weight: Font.Medium })
    readonly property font overlayTag: ({ family: fontFamily, pixelSize: 9, weight: Font.ExtraBold, letterSpacing: 1.2 })
    readonly property font overlayClock: ({ family: fontFamily, pixelSize: 11, weight: Font.Medium, features: { "tnum": 1 } })
    readonly property font overlaySpeed: ({ family: fontFamily, pixelSize: 11, weight: Font.Bold, features: { "tnum": 1 } })
    readonly property font overlayLabel: ({ family: fontFamily, pixelSize: 8, weight: Font.Bold, letterSpacing: 1.1 })
    readonly property font overlayValue: ({ family: fontFamily, pixelSize: 11, weight: Font.DemiBold, features: { "tnum": 1 } })
    readonly property font overlayToast: ({ family: fontFamily, pixelSize: 13, weight: Font.DemiBold, features: { "tnum": 1 } })
    readonly property font overlayHeader: ({ family: fontFamily, pixelSize: 15, weight: Font.DemiBold })
    readonly property font toolTip: ({ family: fontFamily, pixelSize: 11 })

    // Where the player's floating views are.
    readonly property real overlayMargin: 18 // of those at the top corners
    readonly property real controlBarMargin: 22 // and of the toast
    readonly property real controlBarWidth: 760
    readonly property real overlayInset: 20 // no view comes nearer to the sides
    readonly property real badgeGap: 16
    readonly property real infoGap: 10

    // The picture of a moment, above the slider.
    readonly property size previewSize: Qt.size(256, 144) // of the picture, at most
    readonly property real previewLeastWidth: 96
    readonly property real previewPadding: 4
    readonly property real previewRadius: 12
    readonly property real previewGap: 5 // between the picture and its words
    readonly property real previewSpacing: 1
    readonly property real previewRise: 7 // below the words

    // The player's panels.
    readonly property font panelText: ({ family: fontFamily, pixelSize: 13 })
    readonly property font panelStrong: ({ family: fontFamily, pixelSize: 13, weight: Font.DemiBold })
    readonly property font panelNumber: ({ family: fontFamily, pixelSize: 13, features: { "tnum": 1 } })
    readonly property font panelHeader: ({ family: fontFamily, pixelSize: 13, weight: Font.Bold })
    readonly property font panelCallout: ({ family: fontFamily, pixelSize: 12 })
    readonly property font panelTime: ({ family: fontFamily, pixelSize: 12, features: { "tnum": 1 } })
    readonly property font panelCaption: ({ family: fontFamily, pixelSize: 11 })
    readonly property font panelIndex: ({ family: fontFamily, pixelSize: 11, features: { "tnum": 1 } })
    readonly property font panelSection: ({ family: fontFamily, pixelSize: 10, weight: Font.Bold, letterSpacing: 1.2, capitalization: Font.AllUppercase })
    readonly property color rowHovered: Qt.rgba(1, 1, 1, 0.08)
    readonly property color rowPressed: Qt.rgba(1, 1, 1, 0.14)
    readonly property color currentChapter: Qt.rgba(accent.r, accent.g, accent.b, 0.25)
    readonly property color currentItem: Qt.rgba(accent.r, accent.g, accent.b, 0.18)
    readonly property color panelDivider: Qt.rgba(1, 1, 1, 0.12)
    readonly property color popoverBacking: Qt.rgba(0.07, 0.075, 0.09, 0.75)
    readonly property real popoverMargin: 10 // to the window's edges
    readonly property real popoverGap: 8 // to the bar
    readonly property real popoverRadius: 14
    readonly property real tracksWidth: 360
    readonly property real tracksHeight: 520 // at most, as are the next two
    readonly property real chaptersWidth: 320
    readonly property real chaptersHeight: 420
    readonly property real queueWidth: 340
    readonly property real goToWidth: 300
    readonly property real linesWidth: 420
    readonly property real linesHeight: 460 // at most
    readonly property real lineTimeWidth: 48
    readonly property int lineRows: 3 // of a line of subtitles, at most
    readonly property real queueRowsHeight: 360
    readonly property real panelPadding: 16
    readonly property real listPadding: 10
    readonly property real headerPadding: 12
    readonly property real sectionSpacing: 16
    readonly property real groupedSpacing: 6
    readonly property real listSpacing: 2
    readonly property real rowRadius: 7
    readonly property real rowSide: 8
    readonly property real rowRise: 6
    readonly property real rowSpacing: 10
    readonly property real rowGap: 8 // before what stands at its end
    readonly property real trackSpacing: 8
    readonly property real trackRise: 3
    readonly property real trackOutset: 6
    readonly property real detailsSpacing: 1
    readonly property real checkmarkWidth: 14
    readonly property real chapterNumberWidth: 22
    readonly property real queueSymbolWidth: 18
    readonly property real delayWidth: 64 // at least
    readonly property real rowSymbolSize: 12
    readonly property real panelSymbolSize: 14
    // A row that is being dragged, and the mark where it would go.
    readonly property color liftedRow: Qt.rgba(0.2, 0.21, 0.24, 0.96)
    readonly property real liftedFrom: 0.35 // opacity of its old place
    readonly property real insertionMark: 2

    // Fields and controls of settings.
    readonly property color fieldSurface: Qt.rgba(1, 1, 1, 0.1)
    readonly property color fieldHovered: Qt.rgba(1, 1, 1, 0.16)
    readonly property color fieldPressed: Qt.rgba(1, 1, 1, 0.06)
    readonly property color fieldEdge: Qt.rgba(1, 1, 1, 0.1)
    readonly property color fieldChosen: Qt.rgba(1, 1, 1, 0.26)
    readonly property color fieldOn: Qt.rgba(accent.r, accent.g, accent.b, 0.75)
    readonly property color fieldTrack: Qt.rgba(1, 1, 1, 0.24)
    readonly property color fieldKnob: "white"
    readonly property color fieldKnobHeld: Qt.rgba(0.84, 0.84, 0.86, 1)
    readonly property color fieldList: Qt.rgba(0.13, 0.135, 0.15, 0.98)
    readonly property color swatchEdge: Qt.rgba(1, 1, 1, 0.35)
    readonly property color scrollHandle: Qt.rgba(1, 1, 1, 0.3)
    readonly property color scrollHandleHeld: Qt.rgba(1, 1, 1, 0.55)
    readonly property font field: ({ family: fontFamily, pixelSize: 12 })
    readonly property font fieldNumber: ({ family: fontFamily, pixelSize: 12, features: { "tnum": 1 } })
    readonly property real fieldHeight: 22
    readonly property real fieldSide: 8
    readonly property real fieldRadius: 6
    readonly property real fieldInset: 2
    readonly property real fieldListHeight: 240 // at most
    readonly property real fieldSymbolSize: 13
    readonly property real fieldTrackHeight: 4
    readonly property real fieldKnobSize: 14
    readonly property real entryWidth: 200
    readonly property real entryHeight: 28
    readonly property real rowEntryHeight: 20
    readonly property int nameLength: 200 // characters, at most
    readonly property real swatchSize: 18
    readonly property real wellWidth: 36
    readonly property real checkBoxSize: 14
    readonly property real checkBoxRadius: 4
    readonly property real scrollWidth: 4
    readonly property real scrollPadding: 3
    readonly property real scrollLeast: 0.06 // of the track
    readonly property real settingLabelWidth: 42
    readonly property real settingSpacing: 10
    readonly property real fontPickerWidth: 170 // at most
    readonly property real devicePickerWidth: 220
    readonly property real sizeTextWidth: 26
    readonly property real settingsWidth: 520
    readonly property real settingsPadding: 20
    readonly property real settingsGroupSpacing: 5
    readonly property real settingsKeysWidth: 130 // at least
    readonly property real generalHeight: 170
    readonly property real shortcutsHeight: 440
    readonly property real formRow: 40
    readonly property real formRadius: 9
    readonly property real tabWidth: 84
    readonly property real tabHeight: 50
    readonly property real tabSymbolSize: 18

    // The control bar.
    readonly property real barSide: 18
    readonly property real barTop: 12
    readonly property real barBottom: 10
    readonly property real barSpacing: 10
    readonly property real barRadius: 24
    readonly property real groupSpacing: 8
    readonly property real controlRadius: 7
    readonly property real symbolSize: 15
    readonly property real skipSymbolSize: 13
    readonly property real playButtonWidth: 44
    readonly property real playButtonHeight: 36
    readonly property real playSymbolSize: 20
    readonly property real muteWidth: 18
    readonly property real muteHeight: 24
    readonly property real volumeWidth: 92
    readonly property real volumeLeastWidth: 32
    readonly property real transportSpacing: 14
    readonly property real transportTightSpacing: 4
    readonly property real optionsSpacing: 8
    readonly property real optionsTightSpacing: 2
    readonly property real muteSymbolSize: 12
    readonly property real speedWidth: 30 // at least
    readonly property real speedHeight: 22
    readonly property real speedPadding: 4
    readonly property real timeWidth: 54 // at least
    readonly property real timeSpacing: 12
    readonly property real sliderHeight: 18
    readonly property real sliderTrack: 4
    readonly property real sliderKnob: 12
    readonly property real markWidth: 2
    readonly property real markHeight: 9
    readonly property real loopMarkHeight: 15
    readonly property real bookmarkMark: 4

    readonly property real menuWidth: 92
    readonly property real menuRow: 22
    readonly property real menuPadding: 5
    readonly property real menuIndent: 26
    readonly property real menuRadius: 9
    readonly property real checkmarkSize: 11

    // Menus of commands.
    readonly property real commandBarHeight: 28
    readonly property real commandMenuWidth: 160 // at least
    readonly property real commandRow: 24
    readonly property real commandPadding: 4
    readonly property real commandSide: 9
    readonly property real commandGap: 28 // before the keys
    readonly property real menuValueWidth: 140 // at most
    readonly property color menuBacking: Qt.rgba(0.07, 0.075, 0.09, 0.85)

    readonly property int toolTipDelay: 700 // milliseconds
    readonly property real toolTipMargin: 6 // to the window's edges
    readonly property real toolTipWidth: 420 // at most
    readonly property real toolTipPadding: 5
    readonly property real toolTipGap: 8
    readonly property real toolTipRadius: 6

    readonly property real badgeLeading: 8
    readonly property real badgeTrailing: 12
    readonly property real badgeRise: 7
    readonly property real badgeSpacing: 9
    readonly property real badgeTitleWidth: 360 // at most
    readonly property real tagPadding: 7
    readonly property real tagRise: 4
    readonly property real tagRadius: 5
    readonly property real infoWidth: 330
    readonly property real infoRadius: 18
    readonly property real infoPadding: 14
    readonly property real infoSpacing: 8
    readonly property int infoLines: 4
    readonly property real infoLabelWidth: 66
    readonly property real infoLabelGap: 10
    readonly property real shortcutsKeysWidth: 100 // at least
    readonly property font shortcutKeys: ({ family: fontFamily, pixelSize: 12, weight: Font.DemiBold })
    readonly property font shortcutAction: ({ family: fontFamily, pixelSize: 12 })
    readonly property color shortcutsBacking: Qt.rgba(0.07, 0.075, 0.09, 0.9)
    readonly property color shortcutsText: "white"
    readonly property color shortcutsTitle: Qt.rgba(1, 1, 1, 0.55)
    readonly property color shortcutsAction: Qt.rgba(1, 1, 1, 0.8)
    readonly property real shortcutsWidth: 640
    readonly property real shortcutsRadius: 26
    readonly property real shortcutsPadding: 22
    readonly property real shortcutsSpacing: 14
    readonly property real shortcutsGap: 28 // between the columns
    readonly property real shortcutsRowSpacing: 5
    readonly property real shortcutsKeysGap: 10
    readonly property real shortcutsScrollMargin: 8
    readonly property real toastPadding: 16
    readonly property real toastRise: 9
    readonly property real toastGap: 10 // to what lies below it

    readonly property real symbolScale: 1.32 // a symbol fills less of its font's square than a letter

    readonly property real buttonSymbolSize: 14
    readonly property real disabledOpacity: 0.4

    // Buttons, by where they are.
    readonly property ButtonLook fieldButton: ButtonLook {
        focusPolicy: Qt.StrongFocus
        font: theme.field
        ink: theme.primaryText
        height: theme.fieldHeight
        side: theme.fieldSide
        radius: theme.fieldRadius
        surface: theme.fieldSurface
        hovered: theme.fieldHovered
        pressed: theme.fieldPressed
        chosen: theme.fieldOn
        edgeWidth: theme.hairline
        edge: theme.fieldEdge
        focusEdge: theme.accent
        chosenFocusEdge: theme.primaryText
    }
    readonly property ButtonLook barButton: ButtonLook {
        font: theme.overlaySpeed
        ink: theme.symbol
        chosenInk: theme.symbolActive
        symbolSize: theme.symbolSize
        width: 28
        height: 28
        radius: theme.controlRadius
        hovered: theme.controlHovered
        pressed: theme.controlPressed
        chosen: theme.controlActive
        disabled: theme.overlayDisabled
    }
    readonly property ButtonLook panelButton: ButtonLook {
        font: theme.panelText
        ink: theme.overlayText
        symbolSize: theme.rowSymbolSize
        spacing: 5
        side: 5
        rise: 3
        radius: theme.fieldRadius
        hovered: theme.rowHovered
        pressed: theme.rowPressed
        disabled: theme.overlayDisabled
    }
    // Of a row of symbols that switch things in a panel.
    readonly property ButtonLook panelSwitch: ButtonLook {
        focusPolicy: Qt.TabFocus
        font: theme.panelText
        ink: theme.overlayText
        chosenInk: theme.symbolActive
        symbolSize: theme.panelSymbolSize
        width: 32
        height: 28
        radius: theme.controlRadius
        hovered: theme.controlHovered
        pressed: theme.controlPressed
        chosen: theme.controlActive
        disabled: theme.overlayDisabled
        focusEdge: theme.accent
        chosenFocusEdge: theme.primaryText
    }
    readonly property ButtonLook closeButton: ButtonLook {
        font: theme.overlayTitle
        ink: theme.overlayText
        symbolSize: 12
        spacing: 5
        side: 12
        rise: 8
        isGlass: true
        hovered: theme.controlHovered
        pressed: theme.controlPressed
    }
    component LibraryButton: ButtonLook {
        focusPolicy: Qt.TabFocus
        font: ({ family: theme.fontFamily, pixelSize: 13, weight: Font.Medium })
        symbolSize: theme.buttonSymbolSize
        spacing: 7
        side: 20
        rise: 8
        lift: 2
        fades: true
        disabled: theme.disabledOpacity
    }
    readonly property ButtonLook glassButton: LibraryButton {
        ink: theme.primaryText
        isGlass: true
        hovered: theme.surfaceHovered
        pressed: theme.surfacePressed
        focusEdge: theme.accent
    }
    // The thing to do.
    readonly property ButtonLook prominentButton: LibraryButton {
        ink: theme.onAccent
        surface: theme.accent
        hovered: theme.accentHovered
        pressed: theme.accentPressed
        focusEdge: theme.primaryText
    }
    readonly property ButtonLook toolButton: ButtonLook {
        focusPolicy: Qt.TabFocus
        ink: theme.symbol
        symbolSize: theme.symbolSize
        width: 38
        height: 32
        surface: theme.surface
        hovered: theme.surfaceHovered
        pressed: theme.surfacePressed
        edgeWidth: theme.hairline
        edge: theme.surfaceEdge
        focusEdge: theme.accent
    }

    // The library.
    readonly property color sidebar: Qt.rgba(0.078, 0.086, 0.106, 1)
    readonly property color sidebarEdge: Qt.rgba(1, 1, 1, 0.07)
    readonly property color glowTop: Qt.rgba(0.39, 0.82, 1, 0.16)
    readonly property color glowBottom: Qt.rgba(0.75, 0.35, 0.95, 0.14)
    readonly property point glowTopCenter: Qt.point(0.2, 0.15) // of the pane
    readonly property point glowBottomCenter: Qt.point(0.85, 0.9)
    readonly property real glowTopRadius: 520
    readonly property real glowBottomRadius: 560
    readonly property color gold: Qt.rgba(1, 0.84, 0.5, 1)
    readonly property color rowChosen: Qt.rgba(accent.r, accent.g, accent.b, 0.22)
    readonly property font windowTitle: ({ family: fontFamily, pixelSize: 15, weight: Font.DemiBold })
    readonly property font sidebarHeader: ({ family: fontFamily, pixelSize: 11, weight: Font.DemiBold })
    readonly property font sidebarRow: ({ family: fontFamily, pixelSize: 13 })
    readonly property font libraryText: ({ family: fontFamily, pixelSize: 12 })
    readonly property font libraryMessage: ({ family: fontFamily, pixelSize: 12, weight: Font.Medium })
    readonly property font cardLabel: ({ family: fontFamily, pixelSize: 10, weight: Font.Bold, letterSpacing: 1.4 })
    readonly property font cardTitle: ({ family: fontFamily, pixelSize: 17, weight: Font.DemiBold })
    readonly property font chip: ({ family: fontFamily, pixelSize: 11, weight: Font.DemiBold, features: { "tnum": 1 } })
    readonly property font emptyTitle: ({ family: fontFamily, pixelSize: 22, weight: Font.Bold })
    readonly property real headerHeight: 52
    readonly property real sidebarPadding: 10
    readonly property real sidebarRowHeight: 28
    readonly property real sidebarSeenRowHeight: 46 // with how far one was
    readonly property real sidebarRowSpacing: 7
    readonly property font seen: ({ family: fontFamily, pixelSize: 10, weight: Font.Medium, features: { "tnum": 1 } })
    readonly property color seenTrack: Qt.rgba(1, 1, 1, 0.16)
    readonly property real seenHeight: 3
    readonly property real seenGap: 8
    readonly property real sidebarSymbolSize: 14
    readonly property real dividerReach: 4 // on either side of the line
    readonly property real dividerStep: 10 // of a key
    readonly property real cardWidth: 560 // at most
    readonly property real cardMargin: 32
    readonly property real cardPadding: 24
    readonly property real cardSpacing: 16
    readonly property real cardRadius: 26
    readonly property real headingSpacing: 4
    readonly property real chipSpacing: 6
    readonly property real chipPadding: 10
    readonly property real chipRise: 5
    readonly property real detailSpacing: 5
    readonly property real detailGap: 10
    readonly property real detailLabelWidth: 58
    readonly property real cardButtonSpacing: 10
    readonly property real emptySymbolSize: 44
    readonly property real emptyWidth: 380 // at most
    readonly property real messagePadding: 16
    readonly property real messageRise: 10
    readonly property real messageSpacing: 6
    readonly property real highlightInset: 16
    readonly property real highlightRadius: 24
    readonly property real highlightWidth: 2
    readonly property list<real> highlightDashes: [8, 6]

    readonly property real spacing: 16
    readonly property real margin: 24
    readonly property real focusWidth: 2
    readonly property int quick: Motion.isWanted ? 150 : 0 // milliseconds
}
