#include "playback/ScreenshotFile.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <QtEndian>
#include <array>
#include <cerrno>
#include <cmath>
#include <format>
#include <fstream>
#include <string_view>

namespace tromelo {

namespace {

constexpr std::size_t kLongestName = 180;  // bytes, of 255 that a file's name may have
constexpr int kMostOfAName = 1000;
constexpr unsigned char kPq = 16;  // transfer characteristics, ITU-T H.273
constexpr unsigned char kHlg = 18;

/// Never over a file that is there.
bool moveTo(const std::string& from, const std::string& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno == EEXIST) return false;
  // Some file systems can't look and move in one.
  return link(from.c_str(), to.c_str()) == 0 && unlink(from.c_str()) == 0;
}

/// Whole characters of UTF-8.
void shorten(std::string& text, std::size_t most) {
  if (text.size() <= most) return;
  while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xc0) == 0x80) --most;
  text.resize(most);
}

bool isTaken(const std::string& path) { return access(path.c_str(), F_OK) == 0; }

}  // namespace

std::string screenshotName(const QString& film, double seconds) {
  QString name = film;
  for (QChar& character : name)
    if (character == u'/' || character.category() == QChar::Other_Control) character = u' ';
  while (name.startsWith(u'.')) name.removeFirst();  // it would be hidden
  std::string text = name.trimmed().toStdString();
  shorten(text, kLongestName);
  const long whole = std::isfinite(seconds) && seconds > 0 ? std::lround(std::floor(seconds)) : 0;
  const std::string time = std::format("{}.{:02}.{:02}", whole / 3600, whole / 60 % 60, whole % 60);
  return text.empty() ? time : text + " – " + time;
}

std::string keepScreenshots(const std::string& picture, const std::string& signal,
                            const std::string& folder, const std::string& name) {
  for (int number = 1; number <= kMostOfAName; ++number) {
    const std::string stem =
        folder + "/" + name + (number > 1 ? " (" + std::to_string(number) + ")" : "");
    const std::string path = stem + ".png";
    const std::string signalPath = stem + " HDR.png";
    if (isTaken(path) || (!signal.empty() && isTaken(signalPath))) continue;
    if (moveTo(picture, path)) {
      if (!signal.empty()) moveTo(signal, signalPath);
      return path;
    }
    if (!isTaken(path)) return {};
  }
  return {};
}

bool holdsHdr(const std::string& png) {
  std::ifstream file(png, std::ios::binary);
  file.seekg(8);  // the signature
  std::array<char, 8> head{};
  while (file.read(head.data(), head.size())) {
    const auto length = qFromBigEndian<quint32>(head.data());
    const std::string_view type(head.data() + 4, 4);
    if (type == "IDAT") return false;
    if (type == "cICP") {
      std::array<char, 4> codes{};
      file.read(codes.data(), codes.size());
      const auto transfer = static_cast<unsigned char>(codes[1]);
      return file && (transfer == kPq || transfer == kHlg);
    }
    file.seekg(std::streamoff{length} + 4, std::ios::cur);  // its checksum, too
  }
  return false;
}

}  // namespace tromelo
