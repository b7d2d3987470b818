#include "lines/SubtitleBytes.h"

#include <dlfcn.h>
#include <iconv.h>

#include <QString>
#include <QUtf8StringView>
#include <cerrno>

namespace tromelo {

namespace {

constexpr const char* kMostLikely = "CP1252";

/// What the engine guesses with, where it is there.
std::string guessedCodepage(const QByteArray& text) {
  void* const library = dlopen("libuchardet.so.0", RTLD_LAZY | RTLD_LOCAL);
  const auto entry = [&]<typename Function>(Function*, const char* name) {
    return reinterpret_cast<Function*>(library ? dlsym(library, name) : nullptr);
  };
  auto* const create = entry(static_cast<void* (*)()>(nullptr), "uchardet_new");
  auto* const take =
      entry(static_cast<int (*)(void*, const char*, size_t)>(nullptr), "uchardet_handle_data");
  auto* const end = entry(static_cast<void (*)(void*)>(nullptr), "uchardet_data_end");
  auto* const name = entry(static_cast<const char* (*)(void*)>(nullptr), "uchardet_get_charset");
  auto* const destroy = entry(static_cast<void (*)(void*)>(nullptr), "uchardet_delete");
  if (!create || !take || !end || !name || !destroy) return kMostLikely;
  void* const detector = create();
  const bool isRead = take(detector, text.constData(), static_cast<size_t>(text.size())) == 0;
  end(detector);
  const std::string found = isRead ? name(detector) : "";
  destroy(detector);
  return found.empty() ? kMostLikely : found;
}

class Conversion {
 public:
  explicit Conversion(const std::string& from) : handle_(iconv_open("UTF-8", from.c_str())) {}
  ~Conversion() {
    if (isUsable()) iconv_close(handle_);
  }
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;

  bool isUsable() const { return handle_ != iconv_t(-1); }

  QByteArray convert(QByteArray text) {
    QByteArray read;
    char* from = text.data();
    auto left = static_cast<size_t>(text.size());
    while (left > 0) {
      if (read += take(&from, &left); left == 0 || errno == E2BIG) continue;
      read += '?';
      ++from;
      --left;
    }
    // Some keep a letter back, since its accent may follow.
    return read + take(nullptr, nullptr);
  }

 private:
  /// As much as there is room for; errno is E2BIG where that was the reason to stop.
  QByteArray take(char** from, size_t* left) {
    char piece[4096];
    char* to = piece;
    size_t room = sizeof piece;
    iconv(handle_, from, left, &to, &room);
    return {piece, to - piece};
  }

  iconv_t handle_;
};

bool hasMark(const QByteArray& text) {
  return text.startsWith("\xef\xbb\xbf") || text.startsWith("\xff\xfe") ||
         text.startsWith("\xfe\xff");
}

}  // namespace

bool isUnicode(const QByteArray& text) {
  return hasMark(text) || QUtf8StringView(text).isValidUtf8();
}

QByteArray readableSubtitles(const QByteArray& text, const std::string& codepage) {
  if (isUnicode(text)) return text;
  const bool isChosen = !codepage.empty() && codepage != kAutomaticCodepage;
  Conversion chosen(isChosen ? codepage : guessedCodepage(text));
  const QByteArray read =
      chosen.isUsable() ? chosen.convert(text) : Conversion(kMostLikely).convert(text);
  return QString::fromUtf8(read).toUtf8();  // from UTF-8, iconv lets longer characters pass
}

}  // namespace tromelo
