#include "player/PlayerShortcuts.h"

#include "platform/PlatformWording.h"

namespace tromelo {

namespace {

QString shown(const QString& text) { return platformWording(PlayerShortcuts::tr(text.toUtf8())); }

}  // namespace

const QList<ShortcutGroup> PlayerShortcuts::groups{
    {QT_TR_NOOP("Playback"),
     {
         {QT_TR_NOOP("Space"), QT_TR_NOOP("Play / pause")},
         {QT_TR_NOOP("← / →"), QT_TR_NOOP("Back / forward 10 s")},
         {QT_TR_NOOP("⇧← / ⇧→"), QT_TR_NOOP("Back / forward 3 s")},
         {QT_TR_NOOP("⌥← / ⌥→"), QT_TR_NOOP("Back / forward 1 min")},
         {QT_TR_NOOP("E"), QT_TR_NOOP("Next frame (pauses)")},
         {QT_TR_NOOP("[  /  ]"), QT_TR_NOOP("Slower / faster")},
         {QT_TR_NOOP("="), QT_TR_NOOP("Normal speed")},
         {QT_TR_NOOP("L"), QT_TR_NOOP("Loop current video")},
         {QT_TR_NOOP("T"), QT_TR_NOOP("Show time")},
     }},
    {QT_TR_NOOP("Queue & chapters"),
     {
         {QT_TR_NOOP("N / P"), QT_TR_NOOP("Next / previous in queue")},
         {QT_TR_NOOP("⌘→ / ⌘←"), QT_TR_NOOP("Next / previous in queue")},
         {QT_TR_NOOP("⇧N / ⇧P"), QT_TR_NOOP("Next / previous chapter")},
         {QT_TR_NOOP("C"), QT_TR_NOOP("Chapter list")},
         {QT_TR_NOOP("Q"), QT_TR_NOOP("Queue")},
         {QT_TR_NOOP("O / ⌘O"), QT_TR_NOOP("Open videos")},
     }},
    {QT_TR_NOOP("Audio & subtitles"),
     {
         {QT_TR_NOOP("↑ / ↓"), QT_TR_NOOP("Volume up / down")},
         {QT_TR_NOOP("Scroll"), QT_TR_NOOP("Volume")},
         {QT_TR_NOOP("M"), QT_TR_NOOP("Mute")},
         {QT_TR_NOOP("B"), QT_TR_NOOP("Next audio track")},
         {QT_TR_NOOP("V"), QT_TR_NOOP("Next subtitle track (incl. off)")},
         {QT_TR_NOOP("G / H"), QT_TR_NOOP("Subtitle delay −/+ 50 ms")},
         {QT_TR_NOOP("J / K"), QT_TR_NOOP("Audio delay −/+ 50 ms")},
         {QT_TR_NOOP("U"), QT_TR_NOOP("Subtitles & audio panel")},
     }},
    {QT_TR_NOOP("Window"),
     {
         {QT_TR_NOOP("F, double-click"), QT_TR_NOOP("Full screen")},
         {QT_TR_NOOP("Esc"), QT_TR_NOOP("Close panel, leave full screen, or close player")},
         {QT_TR_NOOP("S, ⌘W"), QT_TR_NOOP("Stop and close player")},
         {QT_TR_NOOP("I"), QT_TR_NOOP("Playback info")},
         {QT_TR_NOOP("?"), QT_TR_NOOP("This list")},
     }},
};

QList<ShortcutGroup> PlayerShortcuts::shownGroups() {
  QList<ShortcutGroup> shownOnes;
  for (ShortcutGroup group : groups) {
    group.title = shown(group.title);
    for (Shortcut& shortcut : group.items)
      shortcut = {shown(shortcut.keys), shown(shortcut.action)};
    shownOnes.append(group);
  }
  return shownOnes;
}

}  // namespace tromelo
