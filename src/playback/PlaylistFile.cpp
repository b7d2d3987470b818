#include "playback/PlaylistFile.h"

#include <unistd.h>

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <optional>
#include <set>
#include <utility>

#include "platform/FilePath.h"
#include "platform/RegularFile.h"

namespace tromelo {

namespace {

constexpr std::size_t kLongestLine = 16 * 1024;  // bytes; no path comes near it
constexpr qint64 kMostBytes = 64 * 1024 * 1024;  // in all lists together
constexpr int kMostLists = 1000;
constexpr qsizetype kMostFiles = 100'000;
constexpr int kDeepest = 8;                         // lists in lists
constexpr qsizetype kLongestTold = 80;              // that people are told
constexpr std::string_view kMark = "\xef\xbb\xbf";  // of UTF-8
constexpr std::string_view kStreamTag = "#EXT-X-";

std::string latin1AsUtf8(std::string_view bytes) {
  return QString::fromLatin1(bytes).toStdString();
}

std::string withSlashes(std::string path) {
  std::ranges::replace(path, '\\', '/');
  return path;
}

bool existsAs(const std::string& path) {
  return path.find('\0') == std::string::npos && fileExists(path);
}

/// The lines of a file, those left out that are longer than any that means something. None where it
/// isn't a file that can be read.
class Lines {
 public:
  /// `left` is how many bytes may still be read.
  Lines(const std::string& path, qint64& left)
      : left_(left), file_(openRegularFile(path, facts_)) {}

  bool areReadable() const { return bool(file_); }
  std::pair<dev_t, ino_t> identity() const { return {facts_.st_dev, facts_.st_ino}; }

  template <typename Take>
  void forEach(Take take) {
    std::string line;
    bool isTooLong = false;
    const auto finish = [&] {
      if (line.ends_with('\r')) line.pop_back();
      if (!isTooLong) take(std::as_const(line));
      line.clear();
      isTooLong = false;
    };
    for (std::string part = read(); !part.empty(); part = read()) {
      for (const char byte : part) {
        if (byte == '\n')
          finish();
        else if (line.size() < kLongestLine)
          line += byte;
        else
          isTooLong = true;
      }
    }
    finish();
  }

 private:
  std::string read() {
    std::string part(64 * 1024, '\0');
    ssize_t got = -1;
    do got = ::read(file_.get(), part.data(), part.size());
    while (got < 0 && errno == EINTR);
    part.resize(left_ > 0 && got > 0 ? std::size_t(got) : 0);
    left_ -= qint64(part.size());
    return part;
  }

  qint64& left_;
  struct stat facts_ = {};
  UniqueFd file_;
};

class ListReader {
 public:
  void add(const QUrl& file, int depth) {
    if (result_.files.size() >= kMostFiles) return;
    if (!isPlaylistFile(file)) return result_.files.append(file);
    const qsizetype files = result_.files.size();
    const qsizetype skipped = result_.skipped.size();
    if (read(file, depth)) return;
    result_.files.resize(files);
    result_.skipped.resize(skipped);
    result_.files.append(file);
  }
  OpenedLists take() { return std::move(result_); }

 private:
  using Reason = OpenedLists::Skipped::Reason;

  /// False for a stream.
  bool read(const QUrl& list, int depth) {
    const std::string path = pathFromFileUrl(list);
    Lines lines(path, bytesLeft_);
    if (!lines.areReadable()) {
      skip(Reason::unreadable, list);
      return true;
    }
    // One that is in itself says nothing new.
    if (depth > kDeepest || ++lists_ > kMostLists || !open_.insert(lines.identity()).second)
      return true;
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    bool isStream = false;
    bool isFirst = true;
    lines.forEach([&](std::string_view line) {
      if (std::exchange(isFirst, false) && line.starts_with(kMark))
        line.remove_prefix(kMark.size());
      isStream |= line.starts_with(kStreamTag);
      const bool isBlank = line.find_first_not_of(" \t") == std::string_view::npos;
      if (!isStream && !isBlank && !line.starts_with('#')) addLine(line, folder, depth);
    });
    open_.erase(lines.identity());
    return !isStream;
  }

  void addLine(std::string_view line, const std::string& folder, int depth) {
    const QUrl named = urlFromArgument(line, folder);
    if (!named.isLocalFile()) return skip(Reason::elsewhere, named);
    if (const auto file = found(line, folder)) return add(*file, depth + 1);
    skip(Reason::missing, named);
  }

  /// As the list has it, or as it may have been meant.
  static std::optional<QUrl> found(std::string_view line, const std::string& folder) {
    std::string text(line);
    std::vector<std::string> ways{text};
    if (!QByteArrayView(text).isValidUtf8()) ways.push_back(latin1AsUtf8(text));
    if (text.find('\\') != std::string::npos)
      for (std::size_t i = ways.size(); i > 0; --i) ways.push_back(withSlashes(ways[i - 1]));
    for (const std::string& way : ways) {
      const QUrl file = urlFromArgument(way, folder);
      if (existsAs(pathFromFileUrl(file))) return file;
    }
    return {};
  }

  void skip(Reason reason, const QUrl& file) {
    if (result_.skipped.size() >= kMostFiles) return;
    QString name = file.isLocalFile() ? lastPathComponent(file) : file.toDisplayString();
    if (name.size() > kLongestTold) name = name.first(kLongestTold) + QStringLiteral("…");
    result_.skipped.append({reason, name});
  }

  OpenedLists result_;
  int lists_ = 0;
  qint64 bytesLeft_ = kMostBytes;
  std::set<std::pair<dev_t, ino_t>> open_;  // those that are being read
};

QString oneLine(QString text) {
  for (QChar& letter : text)
    if (letter.category() == QChar::Other_Control) letter = u' ';
  return text;
}

/// The path or, where a line can't hold that, the address.
std::string lineFor(const std::string& path, const std::string& folder) {
  const bool isPlain = QByteArrayView(path).isValidUtf8() &&
                       std::ranges::none_of(path, [](unsigned char byte) { return byte < 0x20; }) &&
                       !path.ends_with(' ');
  if (!isPlain) return fileUrlFromPath(path).toEncoded().toStdString();
  if (!path.starts_with(folder) || path.size() == folder.size()) return path;
  const std::string rest = path.substr(folder.size());
  // What could be taken for a remark, an address or nothing.
  const bool isClear = rest.front() != '#' && rest.front() != ' ' && rest.front() != '/' &&
                       rest.find("://") == std::string::npos;
  return isClear ? rest : "./" + rest;
}

}  // namespace

bool isPlaylistFile(const QUrl& file) {
  const QString name = lastPathComponent(file);
  return file.isLocalFile() && (name.endsWith(QLatin1String(".m3u"), Qt::CaseInsensitive) ||
                                name.endsWith(QLatin1String(".m3u8"), Qt::CaseInsensitive));
}

OpenedLists openLists(const QList<QUrl>& files) {
  ListReader reader;
  for (const QUrl& file : files) reader.add(file, 0);
  return reader.take();
}

QString OpenedLists::sentence() const {
  if (skipped.isEmpty()) return {};
  const auto& [reason, name] = skipped.first();
  if (const int others = static_cast<int>(skipped.size()) - 1; others > 0)
    return QCoreApplication::translate("OpenedLists",
                                       "Skipped %1 and %n more, which can't be played.", "", others)
        .arg(name);
  switch (reason) {
    case Skipped::Reason::missing:
      return QCoreApplication::translate("OpenedLists", "Skipped %1, which isn't there.").arg(name);
    case Skipped::Reason::elsewhere:
      return QCoreApplication::translate("OpenedLists",
                                         "Skipped %1: Tromelo plays local files only.")
          .arg(name);
    case Skipped::Reason::unreadable:
      break;
  }
  return QCoreApplication::translate("OpenedLists", "The list %1 can't be read.").arg(name);
}

QByteArray playlistText(const std::vector<PlaylistEntry>& entries, const std::string& folder) {
  const std::string from = folder.ends_with('/') ? folder : folder + '/';
  QByteArray text = "#EXTM3U\n";
  for (const PlaylistEntry& entry : entries) {
    text += "#EXTINF:-1," + oneLine(entry.title).toUtf8() + '\n';
    text += lineFor(entry.path, from) + '\n';
  }
  return text;
}

}  // namespace tromelo
