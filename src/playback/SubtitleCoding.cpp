#include "playback/SubtitleCoding.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <utility>

#include "engine/MpvEngine.h"
#include "lines/SubtitleBytes.h"
#include "platform/RegularFile.h"

namespace tromelo {

namespace {

constexpr qint64 kEnough = 4 * 1024 * 1024;  // bytes, to tell by

struct Codepage {
  const char* engineName;
  const char* name;
};

constexpr std::array kCodepages{
    Codepage{kAutomaticCodepage, QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Automatic")},
    Codepage{"CP1252", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Western European")},
    Codepage{"CP1250", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Central European")},
    Codepage{"CP1257", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Baltic")},
    Codepage{"CP1251", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Cyrillic")},
    Codepage{"KOI8-R", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Cyrillic (KOI8)")},
    Codepage{"CP1253", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Greek")},
    Codepage{"CP1254", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Turkish")},
    Codepage{"CP1255", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Hebrew")},
    Codepage{"CP1256", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Arabic")},
    Codepage{"CP874", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Thai")},
    Codepage{"CP1258", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Vietnamese")},
    Codepage{"GB18030", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Chinese, simplified")},
    Codepage{"BIG5", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Chinese, traditional")},
    Codepage{"SHIFT_JIS", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Japanese")},
    Codepage{"CP949", QT_TRANSLATE_NOOP("tromelo::SubtitleCoding", "Korean")},
};

/// None where it can't be read. A character may be cut in two at the end of what is looked at.
std::optional<bool> saysHowItIsCoded(const std::string& path) {
  struct stat facts{};
  UniqueFd found = openRegularFile(path, facts);
  QFile file;
  if (!found || !file.open(found.release(), QFile::ReadOnly, QFile::AutoCloseHandle)) return {};
  QByteArray text = file.read(kEnough);
  if (text.size() == kEnough) text.truncate(text.lastIndexOf('\n') + 1);
  return isUnicode(text);
}

}  // namespace

QStringList SubtitleCoding::names() {
  QStringList names;
  for (const Codepage& each : kCodepages) names << tr(each.name);
  return names;
}

int SubtitleCoding::chosen() const {
  const auto named = std::ranges::find_if(
      kCodepages, [this](const Codepage& each) { return codepage_ == each.engineName; });
  return named == kCodepages.end() ? 0 : static_cast<int>(named - kCodepages.begin());
}

void SubtitleCoding::choose(int name) {
  if (name < 0 || name >= static_cast<int>(kCodepages.size()) || state_ != State::unknown) return;
  // The engine forgets it with the film.
  engine_.setProperty("file-local-options/sub-codepage", kCodepages[name].engineName);
  engine_.command({"sub-reload"});
}

void SubtitleCoding::setCodepage(const std::string& codepage) {
  if (std::exchange(codepage_, codepage) != codepage) Q_EMIT changed();
}

void SubtitleCoding::setFile(const std::optional<std::string>& path) {
  if (file_ == path) return;
  file_ = path;
  reading_.drop();
  set(path ? State::unread : State::noFile);
  if (!path) return;
  reading_.run([path = *path] { return saysHowItIsCoded(path); },
               [this](std::optional<bool> says) {
                 if (says) set(*says ? State::unicode : State::unknown);
               });
}

void SubtitleCoding::set(State state) {
  if (std::exchange(state_, state) != state) Q_EMIT changed();
}

QString SubtitleCoding::note() const {
  switch (state_) {
    case State::noFile:
      return tr("Only subtitles in a text file of their own can be coded in different ways.");
    case State::unread:
      return tr("The file of these subtitles can't be read.");
    case State::unicode:
      return tr("This file says itself how it is coded.");
    case State::unknown:
      break;
  }
  return {};
}

}  // namespace tromelo
