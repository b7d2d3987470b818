<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About Tromelo</source>
        <translation>Über Tromelo</translation>
    </message>
    <message>
        <source>Tromelo</source>
        <translation>Tromelo</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy all of this for a bug report</source>
        <translation>Alles für einen Fehlerbericht kopieren</translation>
    </message>
</context>
<context>
    <name>Adjustment</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>As made</source>
        <translation>Wie gemacht</translation>
    </message>
    <message>
        <source>Aspect</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Fills the window</source>
        <translation>Füllt das Fenster</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Move left / right</source>
        <translation>Links / rechts</translation>
    </message>
    <message>
        <source>Move up / down</source>
        <translation>Hoch / runter</translation>
    </message>
    <message>
        <source>Turned</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Black bars cut off</source>
        <translation>Schwarze Balken ab</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>Deinterlacing</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Fließende Bewegung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>HDR on this screen</source>
        <translation>HDR auf diesem Schirm</translation>
    </message>
    <message>
        <source>Faithful</source>
        <translation>Getreu</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Soft highlights</source>
        <translation>Weiche Lichter</translation>
    </message>
    <message>
        <source>Night mode</source>
        <translation>Nachtmodus</translation>
    </message>
    <message>
        <source>Mixed down to stereo</source>
        <translation>Auf Stereo gemischt</translation>
    </message>
    <message>
        <source>Second subtitles</source>
        <translation>Zweite Untertitel</translation>
    </message>
    <message>
        <source>Size of subtitles</source>
        <translation>Größe der Untertitel</translation>
    </message>
    <message>
        <source>Place of subtitles</source>
        <translation>Lage der Untertitel</translation>
    </message>
    <message>
        <source>Without notes on sounds</source>
        <translation>Ohne Hinweise auf Geräusche</translation>
    </message>
    <message>
        <source>Brightness on HDR</source>
        <translation>Helligkeit auf HDR</translation>
    </message>
</context>
<context>
    <name>BookmarkList</name>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
</context>
<context>
    <name>BookmarkRow</name>
    <message>
        <source>Name of the bookmark</source>
        <translation>Name des Lesezeichens</translation>
    </message>
    <message>
        <source>Rename (F2)</source>
        <translation>Umbenennen (F2)</translation>
    </message>
    <message>
        <source>Remove (Delete)</source>
        <translation>Entfernen (Entf)</translation>
    </message>
</context>
<context>
    <name>Chapter</name>
    <message>
        <source>Chapter %1</source>
        <translation>Kapitel %1</translation>
    </message>
</context>
<context>
    <name>ChaptersPanel</name>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
</context>
<context>
    <name>CodingRow</name>
    <message>
        <source>Encoding</source>
        <translation>Zeichensatz</translation>
    </message>
</context>
<context>
    <name>DefaultsFile</name>
    <message>
        <source>Your settings in %1 can&apos;t be read, and changes can&apos;t be saved: %2.</source>
        <translation>Die Einstellungen in %1 können nicht gelesen und Änderungen nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>Your settings can&apos;t be saved in %1: %2.</source>
        <translation>Die Einstellungen können nicht in %1 gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>it is damaged, and can&apos;t be set aside</source>
        <translation>die Datei ist beschädigt und lässt sich nicht beiseitelegen</translation>
    </message>
    <message>
        <source>Your settings file was damaged; it is kept as %1.</source>
        <translation>Die Einstellungsdatei war beschädigt; sie wird als %1 aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>DelayRow</name>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>DroppedFiles</name>
    <message>
        <source>Subtitles: %1</source>
        <translation>Untertitel: %1</translation>
    </message>
    <message>
        <source>Added to queue</source>
        <translation>Zur Warteschlange hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>Added %n videos to queue</source>
        <translation>
            <numerusform>%n Video zur Warteschlange hinzugefügt</numerusform>
            <numerusform>%n Videos zur Warteschlange hinzugefügt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DynamicRange</name>
    <message>
        <source>Dolby Vision · Profile %1</source>
        <translation>Dolby Vision · Profil %1</translation>
    </message>
</context>
<context>
    <name>EmptyLibrary</name>
    <message>
        <source>Drop a Video</source>
        <translation>Video hier ablegen</translation>
    </message>
    <message>
        <source>Or choose some to play. Several videos play as a queue.</source>
        <translation>Oder Videos zur Wiedergabe auswählen. Mehrere Videos bilden eine Warteschlange.</translation>
    </message>
    <message>
        <source>Open Videos…</source>
        <translation>Videos öffnen …</translation>
    </message>
</context>
<context>
    <name>EngineErrorText</name>
    <message>
        <source>Could not create the playback engine</source>
        <translation>Die Wiedergabe-Engine konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>memory allocation failed</source>
        <translation>nicht genug Speicher</translation>
    </message>
    <message>
        <source>error running command</source>
        <translation>Befehl fehlgeschlagen</translation>
    </message>
    <message>
        <source>loading failed</source>
        <translation>Laden fehlgeschlagen</translation>
    </message>
    <message>
        <source>audio output initialization failed</source>
        <translation>Tonausgabe konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>video output initialization failed</source>
        <translation>Bildausgabe konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>no audio or video data played</source>
        <translation>keine Ton- oder Bilddaten gefunden</translation>
    </message>
    <message>
        <source>unrecognized file format</source>
        <translation>unbekanntes Dateiformat</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>nicht unterstützt</translation>
    </message>
    <message>
        <source>The playback library libmpv is too old; install version 0.38 or newer to play videos.</source>
        <translation>Die Wiedergabebibliothek libmpv ist zu alt; mit Version 0.38 oder neuer lassen sich Videos abspielen.</translation>
    </message>
    <message>
        <source>The playback library libmpv was not found; install it (libmpv2) to play videos.</source>
        <translation>Die Wiedergabebibliothek libmpv wurde nicht gefunden; installieren Sie sie (libmpv2), um Videos abzuspielen.</translation>
    </message>
</context>
<context>
    <name>FileManager</name>
    <message>
        <source>The file manager can&apos;t be opened.</source>
        <translation>Der Dateimanager kann nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>FilmDatabase</name>
    <message>
        <source>Where you stop in films can&apos;t be remembered now: another program holds %1; close it.</source>
        <translation>Wo Sie in Filmen aufhören, lässt sich jetzt nicht merken: Ein anderes Programm hält %1 fest; beenden Sie es.</translation>
    </message>
    <message>
        <source>Where you stop in films can&apos;t be remembered in %1: %2; free some space there or make it yours.</source>
        <translation>Wo Sie in Filmen aufhören, lässt sich in %1 nicht merken: %2; schaffen Sie dort Platz oder machen Sie es zu Ihrem.</translation>
    </message>
    <message>
        <source>Where you stop in films can&apos;t be remembered: Qt&apos;s SQLite driver is missing; install it (libqt6sql6-sqlite).</source>
        <translation>Wo Sie in Filmen aufhören, lässt sich nicht merken: Der SQLite-Treiber von Qt fehlt; installieren Sie ihn (libqt6sql6-sqlite).</translation>
    </message>
    <message>
        <source>Where you stop in films isn&apos;t remembered: %1 is a newer Tromelo&apos;s; update this one.</source>
        <translation>Wo Sie in Filmen aufhören, wird nicht gemerkt: %1 stammt von einem neueren Tromelo; aktualisieren Sie dieses.</translation>
    </message>
    <message>
        <source>Where you stop in films can&apos;t be remembered: %1 is damaged, and can&apos;t be set aside; move it away.</source>
        <translation>Wo Sie in Filmen aufhören, lässt sich nicht merken: %1 ist beschädigt und lässt sich nicht beiseitelegen; verschieben Sie es.</translation>
    </message>
    <message>
        <source>The memory of your films was damaged and begins anew; the old one is kept as %1.</source>
        <translation>Das Gedächtnis Ihrer Filme war beschädigt und beginnt neu; das alte liegt in %1.</translation>
    </message>
</context>
<context>
    <name>FilmResume</name>
    <message>
        <source>%1 min left</source>
        <translation>noch %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>noch %1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>noch %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>ForgetFilms</name>
    <message>
        <source>Places, tracks and bookmarks of films</source>
        <translation>Stellen, Spuren und Lesezeichen</translation>
    </message>
    <message>
        <source>Forget All Films…</source>
        <translation>Alle Filme vergessen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Forget All Films</source>
        <translation>Alle vergessen</translation>
    </message>
    <message>
        <source>This can&apos;t be undone.</source>
        <translation>Das ist endgültig.</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Hide player controls after</source>
        <translation>Bedienelemente ausblenden nach</translation>
    </message>
    <message>
        <source>Controls stay visible while paused, while a panel is open, or while the pointer is over them.</source>
        <translation>Die Bedienelemente bleiben sichtbar, solange die Wiedergabe angehalten oder ein Bereich offen ist oder der Zeiger auf ihnen ruht.</translation>
    </message>
</context>
<context>
    <name>GoToPanel</name>
    <message>
        <source>Go to time</source>
        <translation>Zu Zeit springen</translation>
    </message>
</context>
<context>
    <name>HardwareDecoding</name>
    <message>
        <source>Hardware (%1)</source>
        <translation>Hardware (%1)</translation>
    </message>
    <message>
        <source>Software (stream rejected by VideoToolbox)</source>
        <translation>Software (vom VideoToolbox abgelehnt)</translation>
    </message>
    <message>
        <source>Software (FFmpeg)</source>
        <translation>Software (FFmpeg)</translation>
    </message>
</context>
<context>
    <name>HdrNote</name>
    <message>
        <source>needs a Wayland session</source>
        <translation>braucht eine Wayland-Sitzung</translation>
    </message>
    <message>
        <source>off: TROMELO_PICTURE</source>
        <translation>aus: TROMELO_PICTURE</translation>
    </message>
    <message>
        <source>desktop lacks %1</source>
        <translation>Desktop fehlt %1</translation>
    </message>
    <message>
        <source>refused by the desktop</source>
        <translation>vom Desktop abgelehnt</translation>
    </message>
    <message>
        <source>no colour management here</source>
        <translation>Desktop ohne Farbverwaltung</translation>
    </message>
    <message>
        <source>screen is in SDR mode</source>
        <translation>Bildschirm im SDR-Modus</translation>
    </message>
    <message>
        <source>not from this driver</source>
        <translation>nicht mit diesem Treiber</translation>
    </message>
</context>
<context>
    <name>IdleInhibitor</name>
    <message>
        <source>Playing a video</source>
        <translation>Wiedergabe eines Videos</translation>
    </message>
</context>
<context>
    <name>LastPlayedCard</name>
    <message>
        <source>Last played</source>
        <translation>Zuletzt wiedergegeben</translation>
    </message>
    <message>
        <source>LAST PLAYED</source>
        <translation>ZULETZT WIEDERGEGEBEN</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Decoder</source>
        <translation>Dekoder</translation>
    </message>
    <message>
        <source>Play Again</source>
        <translation>Erneut wiedergeben</translation>
    </message>
    <message>
        <source>Open Other…</source>
        <translation>Anderes öffnen …</translation>
    </message>
</context>
<context>
    <name>LibraryDetail</name>
    <message>
        <source>%1 has no picture. Space pauses, the arrows seek and set the volume, Esc stops.</source>
        <translation>%1 hat kein Bild. Leertaste pausiert, Pfeiltasten springen und ändern die Lautstärke, Esc beendet.</translation>
    </message>
</context>
<context>
    <name>LibraryHeader</name>
    <message>
        <source>Tromelo</source>
        <translation>Tromelo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Private: nothing is remembered</source>
        <translation>Privat: nichts wird gemerkt</translation>
    </message>
</context>
<context>
    <name>LibraryMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>&amp;Mediathek</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About Tromelo</source>
        <translation>Ü&amp;ber Tromelo</translation>
    </message>
    <message>
        <source>End &amp;Private Session</source>
        <translation>&amp;Private Sitzung beenden</translation>
    </message>
    <message>
        <source>Begin &amp;Private Session</source>
        <translation>&amp;Private Sitzung beginnen</translation>
    </message>
</context>
<context>
    <name>LibraryView</name>
    <message>
        <source>Width of the sidebar</source>
        <translation>Breite der Seitenleiste</translation>
    </message>
</context>
<context>
    <name>LibraryWindow</name>
    <message>
        <source>Tromelo</source>
        <translation>Tromelo</translation>
    </message>
</context>
<context>
    <name>LineRow</name>
    <message>
        <source>This line is spoken now</source>
        <translation>Diese Zeile wird jetzt gesprochen</translation>
    </message>
    <message>
        <source>This line is spoken now (Shift+Enter)</source>
        <translation>Diese Zeile wird jetzt gesprochen (Umschalt+Eingabe)</translation>
    </message>
</context>
<context>
    <name>LinesPanel</name>
    <message>
        <source>Search the lines</source>
        <translation>Die Zeilen durchsuchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Subtitle lines</source>
        <translation>Untertitelzeilen</translation>
    </message>
    <message>
        <source>No line has these words.</source>
        <translation>In keiner Zeile stehen diese Wörter.</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Versatz</translation>
    </message>
</context>
<context>
    <name>LostScene</name>
    <message>
        <source>The graphics driver can&apos;t draw Tromelo&apos;s windows (%1); start Tromelo again, and films go on where they were.</source>
        <translation>Der Grafiktreiber kann die Fenster von Tromelo nicht zeichnen (%1); starten Sie Tromelo neu, Filme gehen dort weiter, wo sie waren.</translation>
    </message>
</context>
<context>
    <name>MediaTrack</name>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>%1 ch</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Spur %1</translation>
    </message>
    <message>
        <source>Forced</source>
        <translation>Erzwungen</translation>
    </message>
    <message>
        <source>External</source>
        <translation>Extern</translation>
    </message>
</context>
<context>
    <name>OpenedLists</name>
    <message numerus="yes">
        <source>Skipped %1 and %n more, which can&apos;t be played.</source>
        <translation>
            <numerusform>%1 und %n weitere Datei wurden übersprungen, da sie sich nicht abspielen lassen.</numerusform>
            <numerusform>%1 und %n weitere Dateien wurden übersprungen, da sie sich nicht abspielen lassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Skipped %1, which isn&apos;t there.</source>
        <translation>%1 wurde übersprungen: Die Datei ist nicht da.</translation>
    </message>
    <message>
        <source>Skipped %1: Tromelo plays local files only.</source>
        <translation>%1 wurde übersprungen: Tromelo spielt nur lokale Dateien ab.</translation>
    </message>
    <message>
        <source>The list %1 can&apos;t be read.</source>
        <translation>Die Liste %1 kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>OutputFaults</name>
    <message>
        <source>The picture can&apos;t be drawn with the Vulkan driver of your graphics card; update it to play videos.</source>
        <translation>Der Vulkan-Treiber der Grafikkarte kann das Bild nicht zeichnen; aktualisieren Sie ihn, um Videos abzuspielen.</translation>
    </message>
    <message>
        <source>No Vulkan driver was found; install one for your graphics card (mesa-vulkan-drivers) to play videos.</source>
        <translation>Es wurde kein Vulkan-Treiber gefunden; installieren Sie den Ihrer Grafikkarte (mesa-vulkan-drivers), um Videos abzuspielen.</translation>
    </message>
    <message>
        <source>No sound device was found; check your sound settings.</source>
        <translation>Es wurde kein Audiogerät gefunden; prüfen Sie die Klangeinstellungen.</translation>
    </message>
</context>
<context>
    <name>PlatformWording</name>
    <message>
        <source>Ctrl+</source>
        <translation>Strg+</translation>
    </message>
    <message>
        <source>Shift+</source>
        <translation>Umschalt+</translation>
    </message>
    <message>
        <source>Alt+</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>File Manager</source>
        <translation>Dateimanager</translation>
    </message>
    <message>
        <source>hardware decoder</source>
        <translation>Hardware-Dekoder</translation>
    </message>
</context>
<context>
    <name>PlaybackSettings</name>
    <message>
        <source>Go on where I stopped</source>
        <translation>Dort weiter, wo ich aufgehört habe</translation>
    </message>
    <message>
        <source>Go on with the folder&apos;s next video</source>
        <translation>Mit dem nächsten Video des Ordners weitermachen</translation>
    </message>
    <message>
        <source>Sound goes to</source>
        <translation>Ton geht an</translation>
    </message>
    <message>
        <source>Leave Dolby and DTS to the receiver</source>
        <translation>Dolby und DTS dem Receiver überlassen</translation>
    </message>
    <message>
        <source>What else can be changed about a film is in the menu over the picture, and there for all films, too.</source>
        <translation>Was sich sonst an einem Film ändern lässt, steht im Menü über dem Bild, auch für alle Filme.</translation>
    </message>
</context>
<context>
    <name>PlayerControlBar</name>
    <message>
        <source>Playback controls</source>
        <translation>Wiedergabesteuerung</translation>
    </message>
</context>
<context>
    <name>PlayerInfoPanel</name>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Codec</source>
        <translation>Codec</translation>
    </message>
    <message>
        <source>Decoder</source>
        <translation>Dekoder</translation>
    </message>
    <message>
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>Dropped</source>
        <translation>Verworfen</translation>
    </message>
    <message>
        <source>%1 decode · %2 output</source>
        <translation>%1 Dekoder · %2 Ausgabe</translation>
    </message>
    <message>
        <source>Playback info</source>
        <translation>Wiedergabeinfo</translation>
    </message>
    <message>
        <source>HDR</source>
        <translation>HDR</translation>
    </message>
    <message>
        <source>Private</source>
        <translation>Privat</translation>
    </message>
    <message>
        <source>Nothing is remembered</source>
        <translation>Nichts wird gemerkt</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
</context>
<context>
    <name>PlayerOverlayView</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Start Over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
</context>
<context>
    <name>PlayerPanels</name>
    <message>
        <source>Subtitles and audio</source>
        <translation>Untertitel und Ton</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Zu Zeit springen</translation>
    </message>
    <message>
        <source>Subtitle lines</source>
        <translation>Untertitelzeilen</translation>
    </message>
</context>
<context>
    <name>PlayerShortcutsPanel</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
</context>
<context>
    <name>PrivateDisplay</name>
    <message>
        <source>no folder could be made for the private display (%1); set XDG_RUNTIME_DIR to one that you can write to.</source>
        <translation>für die eigene Anzeige ließ sich kein Ordner anlegen (%1); setzen Sie XDG_RUNTIME_DIR auf einen beschreibbaren.</translation>
    </message>
    <message>
        <source>the private display did not start; install the package of the library wlroots again.</source>
        <translation>die eigene Anzeige ist nicht gestartet; installieren Sie das Paket der Bibliothek wlroots neu.</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Videos can&apos;t be shown: %1</source>
        <translation>Videos können nicht gezeigt werden: %1</translation>
    </message>
    <message>
        <source>OpenGL doesn&apos;t work here, which makes drawing slow; install the OpenGL driver of your graphics card (libgl1-mesa-dri).</source>
        <translation>OpenGL funktioniert hier nicht, daher wird langsam gezeichnet; installieren Sie den OpenGL-Treiber Ihrer Grafikkarte (libgl1-mesa-dri).</translation>
    </message>
    <message>
        <source>Pictures can&apos;t be shown straight from your graphics card&apos;s memory, which makes playing slower; update its driver.</source>
        <translation>Bilder können nicht direkt aus dem Speicher Ihrer Grafikkarte gezeigt werden, daher wird langsamer wiedergegeben; aktualisieren Sie deren Treiber.</translation>
    </message>
    <message>
        <source>The desktop refused the picture, so it is drawn without HDR; report this with what tromelo --display-selftest says.</source>
        <translation>Der Desktop hat das Bild abgelehnt; es wird ohne HDR gezeichnet. Bitte melden, mit der Ausgabe von tromelo --display-selftest.</translation>
    </message>
</context>
<context>
    <name>QueueButtons</name>
    <message>
        <source>Add the Rest of the Folder</source>
        <translation>Rest des Ordners hinzufügen</translation>
    </message>
</context>
<context>
    <name>QueuePanel</name>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>Clear Up Next</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Nothing up next. Drop videos on the player or choose Add….</source>
        <translation>Danach kommt nichts. Videos auf dem Player ablegen oder „Hinzufügen …“ wählen.</translation>
    </message>
</context>
<context>
    <name>QueueRow</name>
    <message>
        <source>Remove from queue</source>
        <translation>Aus der Warteschlange entfernen</translation>
    </message>
    <message>
        <source>%1. Alt+Up and Alt+Down move it, Delete removes it.</source>
        <translation>%1. Alt+Auf und Alt+Ab verschieben, Entf entfernt.</translation>
    </message>
</context>
<context>
    <name>RecentsList</name>
    <message>
        <source>Recently Played</source>
        <translation>Zuletzt wiedergegeben</translation>
    </message>
    <message>
        <source>Videos you play appear here.</source>
        <translation>Wiedergegebene Videos erscheinen hier.</translation>
    </message>
    <message>
        <source>Add to Queue</source>
        <translation>Zur Warteschlange hinzufügen</translation>
    </message>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
    <message>
        <source>Remove from Recents</source>
        <translation>Aus „Zuletzt wiedergegeben“ entfernen</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Press ? in the player to show this list over the video.</source>
        <translation>? im Player zeigt diese Liste über dem Video.</translation>
    </message>
</context>
<context>
    <name>SignalTexts</name>
    <message>
        <source>Tone-mapped to SDR</source>
        <translation>Auf SDR umgerechnet</translation>
    </message>
    <message>
        <source>SDR display</source>
        <translation>SDR-Bildschirm</translation>
    </message>
    <message>
        <source>EDR · %1× headroom (now %2×)</source>
        <translation>EDR · %1× Reserve (jetzt %2×)</translation>
    </message>
</context>
<context>
    <name>SmoothMotion</name>
    <message>
        <source>%1 at %2 Hz, in step</source>
        <translation>%1 auf %2 Hz, im Takt</translation>
    </message>
    <message>
        <source>%1 at %2 Hz, interpolated</source>
        <translation>%1 auf %2 Hz, interpoliert</translation>
    </message>
</context>
<context>
    <name>SpeedList</name>
    <message>
        <source>Playback speed</source>
        <translation>Wiedergabegeschwindigkeit</translation>
    </message>
</context>
<context>
    <name>SubtitleBorderStyle</name>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Kasten</translation>
    </message>
</context>
<context>
    <name>SubtitlePreview</name>
    <message>
        <source>The quick brown fox jumps over the lazy dog</source>
        <translation>Zwölf Boxkämpfer jagen Viktor quer über den großen Sylter Deich</translation>
    </message>
</context>
<context>
    <name>SubtitleSettings</name>
    <message>
        <source>Changes apply immediately, including during playback.</source>
        <translation>Änderungen gelten sofort, auch während der Wiedergabe.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>SubtitleStyleControls</name>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Use this color</source>
        <translation>Diese Farbe verwenden</translation>
    </message>
    <message>
        <source>Custom color</source>
        <translation>Eigene Farbe</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Edge color</source>
        <translation>Randfarbe</translation>
    </message>
    <message>
        <source>Outline and shadow color</source>
        <translation>Farbe von Kontur und Schatten</translation>
    </message>
    <message>
        <source>Also restyle styled (ASS) subtitles</source>
        <translation>Auch gestaltete Untertitel (ASS) anpassen</translation>
    </message>
    <message>
        <source>Styled subtitles keep their own look unless this is on.</source>
        <translation>Gestaltete Untertitel behalten sonst ihr eigenes Aussehen.</translation>
    </message>
</context>
<context>
    <name>TimeRow</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>TrackList</name>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>TracksPanel</name>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>Untertiteldatei hinzufügen …</translation>
    </message>
    <message>
        <source>Timing</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Subtitle Style</source>
        <translation>Untertitelstil</translation>
    </message>
    <message>
        <source>Reset Style</source>
        <translation>Stil zurücksetzen</translation>
    </message>
</context>
<context>
    <name>VolumeControls</name>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
</context>
<context>
    <name>tromelo::AboutFacts</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>tromelo::PlaybackModel</name>
    <message>
        <source>Play</source>
        <translation>Wiedergeben</translation>
    </message>
    <message>
        <source>Add to Queue</source>
        <translation>Zur Warteschlange hinzufügen</translation>
    </message>
    <message>
        <source>Add Subtitle</source>
        <translation>Untertitel hinzufügen</translation>
    </message>
    <message>
        <source>Selecting decoder</source>
        <translation>Dekoder wird gewählt</translation>
    </message>
    <message>
        <source>Could not play %1: %2</source>
        <translation>%1 kann nicht wiedergegeben werden: %2</translation>
    </message>
    <message>
        <source>Skipped %1: %2</source>
        <translation>%1 übersprungen: %2</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Untertitel: %1</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>Keine Untertitel</translation>
    </message>
    <message>
        <source>Subtitles off</source>
        <translation>Untertitel aus</translation>
    </message>
    <message>
        <source>No audio</source>
        <translation>Kein Ton</translation>
    </message>
    <message>
        <source>Audio: %1</source>
        <translation>Ton: %1</translation>
    </message>
    <message>
        <source>Tromelo plays local files only.</source>
        <translation>Tromelo spielt nur lokale Dateien ab.</translation>
    </message>
    <message>
        <source>No picture to keep</source>
        <translation>Kein Bild zum Sichern</translation>
    </message>
    <message>
        <source>The picture couldn&apos;t be kept; look whether there is room in your pictures folder.</source>
        <translation>Das Bild konnte nicht gesichert werden; sehen Sie nach, ob in Ihrem Bilderordner Platz ist.</translation>
    </message>
    <message>
        <source>No picture to copy</source>
        <translation>Kein Bild zum Kopieren</translation>
    </message>
    <message>
        <source>The picture couldn&apos;t be copied</source>
        <translation>Das Bild konnte nicht kopiert werden</translation>
    </message>
    <message>
        <source>Bookmark %1</source>
        <translation>Lesezeichen %1</translation>
    </message>
    <message>
        <source>Picture copied</source>
        <translation>Bild kopiert</translation>
    </message>
    <message>
        <source>There is nothing to play in %1.</source>
        <translation>In %1 ist nichts, das sich abspielen lässt.</translation>
    </message>
    <message numerus="yes">
        <source>Added %n videos to queue</source>
        <translation>
            <numerusform>%n Video zur Warteschlange hinzugefügt</numerusform>
            <numerusform>%n Videos zur Warteschlange hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>No other video follows in this folder</source>
        <translation>In diesem Ordner folgt kein weiteres Video</translation>
    </message>
    <message>
        <source>Save Queue</source>
        <translation>Warteschlange sichern</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Queue saved</source>
        <translation>Warteschlange gesichert</translation>
    </message>
    <message>
        <source>The queue can&apos;t be saved as %1; choose another folder. (%2)</source>
        <translation>Die Warteschlange kann nicht als %1 gesichert werden; wählen Sie einen anderen Ordner. (%2)</translation>
    </message>
    <message>
        <source>Tromelo broke off while hardware decoded this film; it is decoded in software until you update your graphics driver.</source>
        <translation>Tromelo brach ab, während Hardware diesen Film dekodierte; er wird in Software dekodiert, bis Sie Ihren Grafiktreiber aktualisieren.</translation>
    </message>
    <message>
        <source>No line follows</source>
        <translation>Es folgt keine Zeile</translation>
    </message>
    <message>
        <source>the graphics card stopped answering; update its driver.</source>
        <translation>die Grafikkarte antwortet nicht mehr; aktualisieren Sie ihren Treiber.</translation>
    </message>
    <message>
        <source>Some of what was kept for this film made no sense; look at what is changed in it.</source>
        <translation>Manches, was für diesen Film gemerkt war, ergab keinen Sinn; sehen Sie nach, was an ihm geändert ist.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>This libmpv can&apos;t do that: %1</source>
        <translation>Diese libmpv kann das nicht: %1</translation>
    </message>
    <message>
        <source>Looking for black bars…</source>
        <translation>Schwarze Balken werden gesucht …</translation>
    </message>
    <message>
        <source>There are no black bars</source>
        <translation>Es gibt keine schwarzen Balken</translation>
    </message>
    <message>
        <source>Too dark to tell where the bars end</source>
        <translation>Zu dunkel, um das Ende der Balken zu erkennen</translation>
    </message>
    <message>
        <source>The picture&apos;s shape changes in this film, so nothing is cut</source>
        <translation>Das Bildformat wechselt in diesem Film, darum wird nichts abgeschnitten</translation>
    </message>
    <message>
        <source>The film couldn&apos;t be searched for black bars</source>
        <translation>Der Film ließ sich nicht nach schwarzen Balken absuchen</translation>
    </message>
    <message>
        <source>the graphics card or the sound server doesn&apos;t answer.</source>
        <translation>die Grafikkarte oder der Tonserver antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>tromelo::PlaybackState</name>
    <message>
        <source>No video selected</source>
        <translation>Kein Video ausgewählt</translation>
    </message>
</context>
<context>
    <name>tromelo::PlayerActions</name>
    <message>
        <source>No chapters</source>
        <translation>Keine Kapitel</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Geschwindigkeit %1</translation>
    </message>
    <message>
        <source>Loop on</source>
        <translation>Wiederholung an</translation>
    </message>
    <message>
        <source>Loop off</source>
        <translation>Wiederholung aus</translation>
    </message>
    <message>
        <source>Chapter: %1</source>
        <translation>Kapitel: %1</translation>
    </message>
    <message>
        <source>No next chapter</source>
        <translation>Kein nächstes Kapitel</translation>
    </message>
    <message>
        <source>No previous chapter</source>
        <translation>Kein voriges Kapitel</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Stummgeschaltet</translation>
    </message>
    <message>
        <source>Subtitle delay %1</source>
        <translation>Untertitel-Versatz %1</translation>
    </message>
    <message>
        <source>Audio delay %1</source>
        <translation>Ton-Versatz %1</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Play / pause</source>
        <translation>Wiedergabe / Pause</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Wiedergabe (Leertaste)</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pause (Leertaste)</translation>
    </message>
    <message>
        <source>← / →</source>
        <translation>← / →</translation>
    </message>
    <message>
        <source>Back / forward 10 s</source>
        <translation>10 s zurück / vor</translation>
    </message>
    <message>
        <source>Back 10 seconds (←)</source>
        <translation>10 Sekunden zurück (←)</translation>
    </message>
    <message>
        <source>Forward 10 seconds (→)</source>
        <translation>10 Sekunden vor (→)</translation>
    </message>
    <message>
        <source>⇧← / ⇧→</source>
        <translation>⇧← / ⇧→</translation>
    </message>
    <message>
        <source>Back / forward 3 s</source>
        <translation>3 s zurück / vor</translation>
    </message>
    <message>
        <source>⌥← / ⌥→</source>
        <translation>⌥← / ⌥→</translation>
    </message>
    <message>
        <source>Back / forward 1 min</source>
        <translation>1 min zurück / vor</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>Next frame (pauses)</source>
        <translation>Nächstes Einzelbild (pausiert)</translation>
    </message>
    <message>
        <source>[  /  ]</source>
        <translation>[  /  ]</translation>
    </message>
    <message>
        <source>Slower / faster</source>
        <translation>Langsamer / schneller</translation>
    </message>
    <message>
        <source>Playback speed ([ and ])</source>
        <translation>Wiedergabegeschwindigkeit ([ und ])</translation>
    </message>
    <message>
        <source>=</source>
        <translation>=</translation>
    </message>
    <message>
        <source>Normal speed</source>
        <translation>Normale Geschwindigkeit</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>Loop current video</source>
        <translation>Video wiederholen</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>Show time</source>
        <translation>Zeit anzeigen</translation>
    </message>
    <message>
        <source>Queue &amp; chapters</source>
        <translation>Warteschlange und Kapitel</translation>
    </message>
    <message>
        <source>N / P</source>
        <translation>N / P</translation>
    </message>
    <message>
        <source>Next / previous in queue</source>
        <translation>Nächstes / voriges Video</translation>
    </message>
    <message>
        <source>Next (N)</source>
        <translation>Nächstes (N)</translation>
    </message>
    <message>
        <source>Previous (P)</source>
        <translation>Voriges (P)</translation>
    </message>
    <message>
        <source>⌘→ / ⌘←</source>
        <translation>⌘→ / ⌘←</translation>
    </message>
    <message>
        <source>⇧N / ⇧P</source>
        <translation>⇧N / ⇧P</translation>
    </message>
    <message>
        <source>Next / previous chapter</source>
        <translation>Nächstes / voriges Kapitel</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>Chapter list</source>
        <translation>Kapitelliste</translation>
    </message>
    <message>
        <source>Chapters (C)</source>
        <translation>Kapitel (C)</translation>
    </message>
    <message>
        <source>Q</source>
        <translation>Q</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Queue (Q)</source>
        <translation>Warteschlange (Q)</translation>
    </message>
    <message>
        <source>O / ⌘O</source>
        <translation>O / ⌘O</translation>
    </message>
    <message>
        <source>Open videos</source>
        <translation>Videos öffnen</translation>
    </message>
    <message>
        <source>Audio &amp; subtitles</source>
        <translation>Ton und Untertitel</translation>
    </message>
    <message>
        <source>↑ / ↓</source>
        <translation>↑ / ↓</translation>
    </message>
    <message>
        <source>Volume up / down</source>
        <translation>Lauter / leiser</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>Scrollen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stummschalten</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>Stummschalten (M)</translation>
    </message>
    <message>
        <source>Unmute (M)</source>
        <translation>Stummschaltung aufheben (M)</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Next audio track</source>
        <translation>Nächste Tonspur</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Next subtitle track (incl. off)</source>
        <translation>Nächster Untertitel (auch aus)</translation>
    </message>
    <message>
        <source>G / H</source>
        <translation>G / H</translation>
    </message>
    <message>
        <source>Subtitle delay −/+ 50 ms</source>
        <translation>Untertitel −/+ 50 ms</translation>
    </message>
    <message>
        <source>J / K</source>
        <translation>J / K</translation>
    </message>
    <message>
        <source>Audio delay −/+ 50 ms</source>
        <translation>Ton −/+ 50 ms</translation>
    </message>
    <message>
        <source>U</source>
        <translation>U</translation>
    </message>
    <message>
        <source>Subtitles &amp; audio panel</source>
        <translation>Untertitel und Ton</translation>
    </message>
    <message>
        <source>Subtitles &amp; audio (U)</source>
        <translation>Untertitel und Ton (U)</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>F, double-click</source>
        <translation>F, Doppelklick</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>Vollbild (F)</translation>
    </message>
    <message>
        <source>Exit full screen (F)</source>
        <translation>Vollbild verlassen (F)</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Close panel, leave full screen, or close player</source>
        <translation>Leiste, Vollbild oder Player schließen</translation>
    </message>
    <message>
        <source>Close player (Esc)</source>
        <translation>Player schließen (Esc)</translation>
    </message>
    <message>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <source>S, ⌘W</source>
        <translation>S, ⌘W</translation>
    </message>
    <message>
        <source>Stop and close player</source>
        <translation>Anhalten und Player schließen</translation>
    </message>
    <message>
        <source>I</source>
        <translation>I</translation>
    </message>
    <message>
        <source>Playback info</source>
        <translation>Wiedergabeinfo</translation>
    </message>
    <message>
        <source>Playback info (I)</source>
        <translation>Wiedergabeinfo (I)</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>This list</source>
        <translation>Diese Liste</translation>
    </message>
    <message>
        <source>Volume %1%</source>
        <translation>Lautstärke %1 %</translation>
    </message>
    <message>
        <source>Open a video (⌘O)</source>
        <translation>Video öffnen (⌘O)</translation>
    </message>
    <message>
        <source>Open videos (⌘O)</source>
        <translation>Videos öffnen (⌘O)</translation>
    </message>
    <message>
        <source>A–B loop off</source>
        <translation>A–B-Schleife aus</translation>
    </message>
    <message>
        <source>Loop from %1</source>
        <translation>Schleife ab %1</translation>
    </message>
    <message>
        <source>Loop %1 – %2</source>
        <translation>Schleife %1 – %2</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>Keine Untertitel</translation>
    </message>
    <message>
        <source>⌘G</source>
        <translation>⌘G</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>,  /  .</source>
        <translation>,  /  .</translation>
    </message>
    <message>
        <source>Previous / next subtitle line</source>
        <translation>Vorige / nächste Untertitelzeile</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Zu Zeit springen</translation>
    </message>
    <message>
        <source>A–B loop (from, to, off)</source>
        <translation>A–B-Schleife (ab, bis, aus)</translation>
    </message>
    <message>
        <source>W / ⇧W</source>
        <translation>W / ⇧W</translation>
    </message>
    <message>
        <source>Keep the picture, with / without subtitles</source>
        <translation>Bild sichern, mit / ohne Untertitel</translation>
    </message>
    <message>
        <source>⌥W</source>
        <translation>⌥W</translation>
    </message>
    <message>
        <source>Keep the picture as it is on the screen</source>
        <translation>Bild sichern, wie es auf dem Bildschirm ist</translation>
    </message>
    <message>
        <source>⌘C</source>
        <translation>⌘C</translation>
    </message>
    <message>
        <source>Bookmark “%1” is here</source>
        <translation>Hier ist das Lesezeichen „%1“</translation>
    </message>
    <message>
        <source>Bookmark at %1</source>
        <translation>Lesezeichen bei %1</translation>
    </message>
    <message>
        <source>D</source>
        <translation>D</translation>
    </message>
    <message>
        <source>Add a bookmark</source>
        <translation>Lesezeichen setzen</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Start over (R)</source>
        <translation>Von vorn (R)</translation>
    </message>
    <message>
        <source>Right-click, ⇧F10</source>
        <translation>Rechtsklick, ⇧F10</translation>
    </message>
    <message>
        <source>Menu of all that can be done</source>
        <translation>Menü mit allem, was geht</translation>
    </message>
    <message>
        <source>Shuffle on</source>
        <translation>Zufällige Reihenfolge ein</translation>
    </message>
    <message>
        <source>Shuffle off</source>
        <translation>Zufällige Reihenfolge aus</translation>
    </message>
    <message>
        <source>Repeat all on</source>
        <translation>Alle wiederholen ein</translation>
    </message>
    <message>
        <source>Repeat all off</source>
        <translation>Alle wiederholen aus</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Shuffle what is up next</source>
        <translation>Nächste in zufälliger Reihenfolge</translation>
    </message>
    <message>
        <source>Shuffle (Z)</source>
        <translation>Zufällige Reihenfolge (Z)</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Repeat all of the queue</source>
        <translation>Ganze Warteschlange wiederholen</translation>
    </message>
    <message>
        <source>Repeat all (A)</source>
        <translation>Alle wiederholen (A)</translation>
    </message>
    <message>
        <source>⌘S</source>
        <translation>⌘S</translation>
    </message>
    <message>
        <source>Save the queue</source>
        <translation>Warteschlange sichern</translation>
    </message>
    <message>
        <source>Save queue… (⌘S)</source>
        <translation>Warteschlange sichern … (⌘S)</translation>
    </message>
    <message>
        <source>Tab, ⌥↑ / ⌥↓</source>
        <translation>Tab, ⌥↑ / ⌥↓</translation>
    </message>
    <message>
        <source>Choose a row, move it in the queue</source>
        <translation>Zeile wählen, in der Warteschlange verschieben</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>All lines of the subtitles</source>
        <translation>Alle Zeilen der Untertitel</translation>
    </message>
    <message>
        <source>⇧Y</source>
        <translation>⇧Y</translation>
    </message>
    <message>
        <source>The next subtitle line is spoken now</source>
        <translation>Die nächste Untertitelzeile wird jetzt gesprochen</translation>
    </message>
    <message>
        <source>0 / 1 / 2</source>
        <translation>0 / 1 / 2</translation>
    </message>
    <message>
        <source>Half, original, double size</source>
        <translation>Halbe, originale, doppelte Größe</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>As large as the screen allows</source>
        <translation>So groß, wie der Bildschirm erlaubt</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>Mini player, and back</source>
        <translation>Mini-Player und zurück</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>Stay on top</source>
        <translation>Im Vordergrund bleiben</translation>
    </message>
    <message>
        <source>The picture as made</source>
        <translation>Das Bild, wie es gemacht ist</translation>
    </message>
    <message>
        <source>⌥C</source>
        <translation>⌥C</translation>
    </message>
    <message>
        <source>While held: the picture as made</source>
        <translation>Gehalten: das Bild, wie es gemacht ist</translation>
    </message>
    <message>
        <source>⌘+ / ⌘-, ⌘Scroll</source>
        <translation>⌘+ / ⌘-, ⌘Mausrad</translation>
    </message>
    <message>
        <source>Subtitles larger / smaller</source>
        <translation>Untertitel größer / kleiner</translation>
    </message>
    <message>
        <source>Page Up / Page Down</source>
        <translation>Bild auf / Bild ab</translation>
    </message>
    <message>
        <source>Subtitles higher / lower</source>
        <translation>Untertitel höher / tiefer</translation>
    </message>
</context>
<context>
    <name>tromelo::PlayerMenu</name>
    <message>
        <source>Play</source>
        <translation>Wiedergeben</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>This video has no chapters.</source>
        <translation>Dieses Video hat keine Kapitel.</translation>
    </message>
    <message>
        <source>This video has neither chapters nor bookmarks.</source>
        <translation>Dieses Video hat weder Kapitel noch Lesezeichen.</translation>
    </message>
    <message>
        <source>This is the last video in the queue.</source>
        <translation>Das ist das letzte Video der Warteschlange.</translation>
    </message>
    <message>
        <source>This is the first video in the queue.</source>
        <translation>Das ist das erste Video der Warteschlange.</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Es gibt kein Bild.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>This video has no other audio track.</source>
        <translation>Dieses Video hat keine andere Tonspur.</translation>
    </message>
    <message>
        <source>This video has no subtitles.</source>
        <translation>Dieses Video hat keine Untertitel.</translation>
    </message>
    <message>
        <source>No subtitles are shown.</source>
        <translation>Es sind keine Untertitel zu sehen.</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Back 10 seconds</source>
        <translation>10 Sekunden zurück</translation>
    </message>
    <message>
        <source>Forward 10 seconds</source>
        <translation>10 Sekunden vor</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Normal speed</source>
        <translation>Normale Geschwindigkeit</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>A–B loop</source>
        <translation>A–B-Schleife</translation>
    </message>
    <message>
        <source>Go to time…</source>
        <translation>Zu Zeit springen …</translation>
    </message>
    <message>
        <source>Add a bookmark</source>
        <translation>Lesezeichen setzen</translation>
    </message>
    <message>
        <source>Chapters and bookmarks</source>
        <translation>Kapitel und Lesezeichen</translation>
    </message>
    <message>
        <source>Next chapter</source>
        <translation>Nächstes Kapitel</translation>
    </message>
    <message>
        <source>Previous chapter</source>
        <translation>Voriges Kapitel</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Warteschlange</translation>
    </message>
    <message>
        <source>Next in queue</source>
        <translation>Nächstes Video</translation>
    </message>
    <message>
        <source>Previous in queue</source>
        <translation>Voriges Video</translation>
    </message>
    <message>
        <source>Open videos…</source>
        <translation>Videos öffnen …</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Keep the picture</source>
        <translation>Bild behalten</translation>
    </message>
    <message>
        <source>Keep it without subtitles</source>
        <translation>Ohne Untertitel behalten</translation>
    </message>
    <message>
        <source>Keep it as it is on the screen</source>
        <translation>Behalten, wie es zu sehen ist</translation>
    </message>
    <message>
        <source>Copy the picture</source>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Louder</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Quieter</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Next audio track</source>
        <translation>Nächste Tonspur</translation>
    </message>
    <message>
        <source>Delay −50 ms</source>
        <translation>Versatz −50 ms</translation>
    </message>
    <message>
        <source>Delay +50 ms</source>
        <translation>Versatz +50 ms</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Next subtitle track</source>
        <translation>Nächster Untertitel</translation>
    </message>
    <message>
        <source>Previous line</source>
        <translation>Vorige Zeile</translation>
    </message>
    <message>
        <source>Next line</source>
        <translation>Nächste Zeile</translation>
    </message>
    <message>
        <source>Subtitles and audio</source>
        <translation>Untertitel und Ton</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Playback info</source>
        <translation>Wiedergabe-Infos</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Stop and close player</source>
        <translation>Stoppen und schließen</translation>
    </message>
    <message>
        <source>Shuffle</source>
        <translation>Zufällige Reihenfolge</translation>
    </message>
    <message>
        <source>Repeat all</source>
        <translation>Alle wiederholen</translation>
    </message>
    <message>
        <source>Save the queue…</source>
        <translation>Warteschlange sichern…</translation>
    </message>
    <message>
        <source>All lines…</source>
        <translation>Alle Zeilen …</translation>
    </message>
    <message>
        <source>The next line is spoken now</source>
        <translation>Die nächste Zeile wird jetzt gesprochen</translation>
    </message>
    <message>
        <source>The window fills the screen.</source>
        <translation>Das Fenster füllt den Bildschirm.</translation>
    </message>
    <message>
        <source>This desktop lets no program keep its window on top.</source>
        <translation>Dieser Desktop lässt kein Programm sein Fenster im Vordergrund halten.</translation>
    </message>
    <message>
        <source>Half size</source>
        <translation>Halbe Größe</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Double size</source>
        <translation>Doppelte Größe</translation>
    </message>
    <message>
        <source>Fit to the screen</source>
        <translation>An den Bildschirm anpassen</translation>
    </message>
    <message>
        <source>Mini player</source>
        <translation>Mini-Player</translation>
    </message>
    <message>
        <source>Stay on top</source>
        <translation>Im Vordergrund bleiben</translation>
    </message>
    <message>
        <source>The installed libmpv can&apos;t do that.</source>
        <translation>Die installierte libmpv kann das nicht.</translation>
    </message>
    <message>
        <source>This video isn&apos;t HDR.</source>
        <translation>Dieses Video ist nicht in HDR.</translation>
    </message>
    <message>
        <source>The screen shows HDR itself.</source>
        <translation>Der Bildschirm zeigt HDR selbst.</translation>
    </message>
    <message>
        <source>This video has no second subtitles.</source>
        <translation>Dieses Video hat keine zweiten Untertitel.</translation>
    </message>
    <message>
        <source>This video has no sound.</source>
        <translation>Dieses Video hat keinen Ton.</translation>
    </message>
    <message>
        <source>Nothing here is changed.</source>
        <translation>Hier ist nichts geändert.</translation>
    </message>
    <message>
        <source>Nothing here is changed that suits all films.</source>
        <translation>Hier ist nichts geändert, was zu allen Filmen passt.</translation>
    </message>
    <message>
        <source>As made</source>
        <translation>Wie gemacht</translation>
    </message>
    <message>
        <source>Use for all films</source>
        <translation>Für alle Filme verwenden</translation>
    </message>
    <message>
        <source>Used for all films</source>
        <translation>Gilt für alle Filme</translation>
    </message>
    <message>
        <source>Sound goes to</source>
        <translation>Ton geht an</translation>
    </message>
    <message>
        <source>Leave Dolby and DTS to the receiver</source>
        <translation>Dolby und DTS dem Receiver überlassen</translation>
    </message>
    <message>
        <source>Dolby and DTS go to the receiver</source>
        <translation>Dolby und DTS gehen an den Receiver</translation>
    </message>
    <message>
        <source>Dolby and DTS are decoded here</source>
        <translation>Dolby und DTS werden hier dekodiert</translation>
    </message>
</context>
<context>
    <name>tromelo::PlayerSettings</name>
    <message>
        <source>1 second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>2 seconds</source>
        <translation>2 Sekunden</translation>
    </message>
    <message>
        <source>3 seconds</source>
        <translation>3 Sekunden</translation>
    </message>
    <message>
        <source>5 seconds</source>
        <translation>5 Sekunden</translation>
    </message>
    <message>
        <source>10 seconds</source>
        <translation>10 Sekunden</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Hellblau</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Hellgrün</translation>
    </message>
</context>
<context>
    <name>tromelo::PlayerWindowController</name>
    <message>
        <source>Resumed at %1</source>
        <translation>Weiter ab %1</translation>
    </message>
    <message>
        <source>From the beginning</source>
        <translation>Von vorn</translation>
    </message>
    <message>
        <source>Picture kept: %1</source>
        <translation>Bild gesichert: %1</translation>
    </message>
    <message>
        <source>Not in full screen</source>
        <translation>Nicht im Vollbild</translation>
    </message>
    <message>
        <source>This desktop lets no program keep its window on top</source>
        <translation>Dieser Desktop lässt kein Programm sein Fenster im Vordergrund halten</translation>
    </message>
    <message>
        <source>Stays on top</source>
        <translation>Bleibt im Vordergrund</translation>
    </message>
    <message>
        <source>No longer stays on top</source>
        <translation>Bleibt nicht mehr im Vordergrund</translation>
    </message>
</context>
<context>
    <name>tromelo::SoundDevices</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>The sound device you chose isn&apos;t there, so the sound goes to the usual one.</source>
        <translation>Das gewählte Tongerät ist nicht da, darum geht der Ton an das übliche.</translation>
    </message>
</context>
<context>
    <name>tromelo::SubtitleCoding</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Western European</source>
        <translation>Westeuropäisch</translation>
    </message>
    <message>
        <source>Central European</source>
        <translation>Mitteleuropäisch</translation>
    </message>
    <message>
        <source>Baltic</source>
        <translation>Baltisch</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Cyrillic (KOI8)</source>
        <translation>Kyrillisch (KOI8)</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>Griechisch</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>Türkisch</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Chinese, simplified</source>
        <translation>Chinesisch, vereinfacht</translation>
    </message>
    <message>
        <source>Chinese, traditional</source>
        <translation>Chinesisch, traditionell</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>Only subtitles in a text file of their own can be coded in different ways.</source>
        <translation>Nur bei Untertiteln in einer eigenen Textdatei ist der Zeichensatz ungewiss.</translation>
    </message>
    <message>
        <source>The file of these subtitles can&apos;t be read.</source>
        <translation>Die Datei dieser Untertitel ist nicht lesbar.</translation>
    </message>
    <message>
        <source>This file says itself how it is coded.</source>
        <translation>Diese Datei sagt selbst, welchen Zeichensatz sie hat.</translation>
    </message>
</context>
<context>
    <name>tromelo::SubtitleLines</name>
    <message>
        <source>No subtitles are shown.</source>
        <translation>Es sind keine Untertitel zu sehen.</translation>
    </message>
    <message>
        <source>These subtitles are pictures: there are no lines to list.</source>
        <translation>Diese Untertitel sind Bilder: Es gibt keine Zeilen, die sich auflisten ließen.</translation>
    </message>
    <message>
        <source>The lines of these subtitles can&apos;t be listed.</source>
        <translation>Die Zeilen dieser Untertitel lassen sich nicht auflisten.</translation>
    </message>
    <message>
        <source>The lines are being read…</source>
        <translation>Die Zeilen werden gelesen …</translation>
    </message>
    <message>
        <source>The subtitles couldn&apos;t be read; look whether their file is still there.</source>
        <translation>Die Untertitel konnten nicht gelesen werden; sehen Sie nach, ob ihre Datei noch da ist.</translation>
    </message>
    <message>
        <source>These subtitles have no lines.</source>
        <translation>Diese Untertitel haben keine Zeilen.</translation>
    </message>
</context>
<context>
    <name>tromelo::TypedTime</name>
    <message>
        <source>Such as 1:02:03, 62:03, 90, +30 or -1:00</source>
        <translation>Zum Beispiel 1:02:03, 62:03, 90, +30 oder -1:00</translation>
    </message>
    <message>
        <source>No time yet. Write it as 1:02:03, 90 or +30</source>
        <translation>Noch keine Zeit, wie 1:02:03, 90 oder +30</translation>
    </message>
    <message>
        <source>The film ends at %1</source>
        <translation>Der Film endet bei %1</translation>
    </message>
    <message>
        <source>Goes to %1</source>
        <translation>Springt zu %1</translation>
    </message>
</context>
</TS>
