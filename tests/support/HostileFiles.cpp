#include "support/HostileFiles.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "support/Clips.h"
#include "support/Files.h"

namespace tromelo::testing {

namespace {

using Random = std::mt19937;
using namespace std::string_literals;

constexpr std::array kClips{"sample.mp4", "sample.mkv", "tracks.mkv", "short-tall.mp4",
                            "hdr10.mkv",  "turned.mp4", "audio.m4a",  "covered.m4a"};

constexpr const char* kSegment = "\x18\x53\x80\x67";
constexpr const char* kTracks = "\x16\x54\xae\x6b";

std::size_t below(Random& random, std::size_t limit) { return limit ? random() % limit : 0; }

std::string bytesOf(const std::string& name) {
  return readFile(QString::fromStdString(clipPath(name))).toStdString();
}

/// A Matroska element with a length of eight bytes.
std::string element(const std::string& id, const std::string& content) {
  std::string length{'\x01'};
  for (int shift = 48; shift >= 0; shift -= 8)
    length += static_cast<char>((content.size() >> shift) & 0xff);
  return id + length + content;
}

/// Behind the head of an element of this kind in a file, where that has one.
std::optional<std::size_t> contentOf(const std::string& file, const std::string& id) {
  const auto found = file.find(id);
  if (found == std::string::npos || found + id.size() >= file.size()) return {};
  const auto first = static_cast<unsigned char>(file[found + id.size()]);
  std::size_t length = 1;
  while (length < 8 && !(first & (0x80U >> (length - 1)))) ++length;
  return found + id.size() + length;
}

std::string cut(Random& random, std::string file) {
  file.resize(below(random, file.size()));
  return file;
}

void flip(Random& random, std::string& file, std::size_t within, std::size_t times) {
  for (; times > 0; --times) {
    char& byte = file[below(random, std::min(within, file.size()))];
    byte = static_cast<char>(byte ^ (1U << below(random, 8)));
  }
}

std::string flipped(Random& random, std::string file) {
  flip(random, file, file.size(), 1 + below(random, 3000));
  return file;
}

std::string flippedHead(Random& random, std::string file) {
  flip(random, file, 2048, 1 + below(random, 30));
  return file;
}

std::string withAnothersHead(Random& random, std::string file) {
  const std::string other = bytesOf(kClips[below(random, kClips.size())]);
  const std::size_t length = 200 + below(random, 4000);
  return other.substr(0, length) + file.substr(std::min(length, file.size()));
}

std::string withAPartTwice(Random& random, std::string file) {
  const std::size_t from = below(random, file.size());
  return file.insert(below(random, file.size()), file.substr(from, 1 + below(random, 100'000)));
}

/// Lengths, sizes, rates and times of both containers.
std::string senseless(Random& random, std::string file) {
  struct Field {
    std::string mark;
    std::size_t length;
  };
  static const std::array kFields{Field{"\x44\x89\x88", 8},
                                  Field{"\xb0\x82", 2},
                                  Field{"\xba\x81", 1},
                                  Field{"\x2a\xd7\xb1", 4},
                                  Field{"\xe7\x81", 1},
                                  Field{"\x23\xe3\x83", 4},
                                  Field{"\x1f\x43\xb6\x75", 8},
                                  Field{kTracks, 4},
                                  Field{"mvhd", 24},
                                  Field{"mdhd", 24},
                                  Field{"tkhd", 88},
                                  Field{"stts", 16},
                                  Field{"stsz", 16},
                                  Field{"stco", 12},
                                  Field{"ctts", 12},
                                  Field{"avc1", 40},
                                  Field{"mp4a", 30},
                                  Field{"trak", 4},
                                  Field{"moov", 4},
                                  Field{"mdat", 4}};
  static const std::array kValues{
      "\xff"s, "\0"s, "\x7f\xff\xff\xff"s, "\x80\0\0\0"s, "\x7f\xf8\0\0\0\0\0\0"s, "\0\0\0\1"s};
  for (std::size_t times = 1 + below(random, 6); times > 0; --times) {
    const Field& field = kFields[below(random, kFields.size())];
    const std::string& value = kValues[below(random, kValues.size())];
    const auto found = file.find(field.mark);
    if (found == std::string::npos) continue;
    for (std::size_t i = 0; i < field.length; ++i)
      if (found + field.mark.size() + i < file.size())
        file[found + field.mark.size() + i] = value[i % value.size()];
  }
  return file;
}

/// Put in front of all that is in the Matroska file, whose length is then unknown.
std::string withFirst(const std::string& file, const std::string& first) {
  const auto content = contentOf(file, kSegment);
  return file.substr(0, file.find(kSegment)) + kSegment + "\x01\xff\xff\xff\xff\xff\xff\xff"s +
         first + file.substr(*content);
}

std::string chapter(std::size_t number, const std::string& inside) {
  return element("\xb6", element("\x73\xc4", std::to_string(number)) +
                             element("\x91", std::string(1 + number % 8, '\xff')) +
                             element("\x80", element("\x85", "Chapter " + std::to_string(number))) +
                             inside);
}

std::string withDeepChapters(Random& random, std::string) {
  std::string deep;
  for (std::size_t depth = 1000 + below(random, 3000); depth > 0; --depth)
    deep = chapter(depth, deep);
  return withFirst(bytesOf("sample.mkv"), element("\x10\x43\xa7\x70", element("\x45\xb9", deep)));
}

std::string withManyChapters(Random& random, std::string) {
  std::string many;
  for (std::size_t i = 5000 + below(random, 15'000); i > 0; --i) many += chapter(i, {});
  return withFirst(bytesOf("sample.mkv"), element("\x10\x43\xa7\x70", element("\x45\xb9", many)));
}

std::string withManyTracks(Random& random, std::string) {
  const std::string file = bytesOf("sample.mkv");
  std::string tracks;
  for (std::size_t i = 3 + 1000 + below(random, 3000); i > 3; --i) {
    const std::string number{static_cast<char>(i >> 8), static_cast<char>(i)};
    tracks += element("\xae", element("\xd7", number) + element("\x73\xc5", number) +
                                  element("\x83", i % 3 ? "\x11" : "\x02") +
                                  element("\x86", i % 3 ? "S_TEXT/UTF8" : "A_AAC") +
                                  element("\x53\x6e", std::string(i % 300, 'x')) +
                                  element("\x22\xb5\x9c", i % 2 ? "ger" : "\xff\xfe"));
  }
  // What is there stays first.
  const auto begin = contentOf(file, kTracks).value_or(0);
  const auto old = file.substr(begin, file.find("\x1f\x43\xb6\x75") - begin);
  return withFirst(file, element(kTracks, old + tracks));
}

std::string nothing(Random& random, std::string) { return std::string(below(random, 3), '\0'); }

std::string noiseOnly(Random& random, std::string) {
  std::string noise(below(random, 200'000), '\0');
  for (char& byte : noise) byte = static_cast<char>(random());
  return noise;
}

std::string whole(Random&, std::string file) { return file; }

struct Kind {
  const char* name;
  std::string (*damage)(Random&, std::string);
};
constexpr std::array kKinds{Kind{"cut", cut},
                            Kind{"flipped bits", flipped},
                            Kind{"flipped bits at its beginning", flippedHead},
                            Kind{"another's beginning", withAnothersHead},
                            Kind{"a part twice", withAPartTwice},
                            Kind{"senseless numbers", senseless},
                            Kind{"more senseless numbers", senseless},
                            Kind{"chapters in chapters", withDeepChapters},
                            Kind{"many chapters", withManyChapters},
                            Kind{"many tracks", withManyTracks},
                            Kind{"nothing", nothing},
                            Kind{"noise", noiseOnly},
                            Kind{"subtitles", whole},
                            Kind{"name", whole}};

static_assert(kKinds.size() == HostileFiles::kinds);

// Scripts that go both ways, letters that aren't, what other programs take for options, addresses,
// formats and commands.
const std::array kNames{
    "-rf"s,
    "--start=nan"s,
    "-"s,
    " "s,
    ".mkv"s,
    "..mkv"s,
    "no extension"s,
    "%s%n%p%00.mkv"s,
    "a\nb\r\t.mkv"s,
    "\xff\xfe\xfd.mkv"s,
    "\xd9\x81\xd9\x8a\xd9\x84\xd9\x85 \xd7\xa1\xd7\xa8\xd7\x98.mp4"s,
    "\xe6\x98\xa0\xe7\x94\xbb\xf0\x9f\x8e\xac\xf0\x9f\x91\xa9\xe2\x80\x8d\xf0\x9f\x9a\x80.mkv"s,
    "\xe2\x80\xae"
    "4pm.elif.mp4"s,
    "e" + std::string(60, '\xcc') + ".mkv"s,
    std::string(251, 'x') + ".mkv"s,
    "file:x.mkv"s,
    "http:x#y?z.mkv"s,
    "'\"`$(true);&&|<>*?.mkv"s,
    "<b>&amp;</b><img src=x>.mkv"s,
    "\\\\host\\share.mkv"s,
    "name.m3u.mkv"s,
    "\xcc\x81.mkv"s};

std::string hostileSubtitles(Random& random) {
  std::string text = below(random, 2)
                         ? "1\n00:00:00,000 --> 99:99:99,999\n"s
                         : "[Script Info]\nPlayResX: -1\nPlayResY: 999999999\n[Events]\n"
                           "Dialogue: 0,0:00:00.00,9:00:00.00,,,,,,,{\\fs99999\\t(0,1,\\frz1e9)}"s;
  for (int i = 0; i < 2000; ++i) text += "{\\pos(1e9,-1)}<font size=\"99999\">\xff\xe2\x80\xae W";
  return text;
}

}  // namespace

HostileFiles::HostileFiles(std::string folder, unsigned seed)
    : folder_(std::move(folder)), random_(seed) {
  std::filesystem::create_directories(folder_);
}

std::string HostileFiles::clip() { return kClips[below(random_, kClips.size())]; }

HostileFiles::File HostileFiles::make(int number) {
  const auto index = std::size_t(number);
  const Kind& kind = kKinds[index % kKinds.size()];
  const std::string name = clip();
  const std::string stem = folder_ + "/hostile-" + std::to_string(number);
  std::string path = stem + name.substr(name.rfind('.'));
  if (kind.name == "subtitles"s)
    writeFile(stem + (below(random_, 2) ? ".srt" : ".ass"), hostileSubtitles(random_));
  if (kind.name == "name"s) path = folder_ + '/' + kNames[index / kKinds.size() % kNames.size()];
  writeFile(path, kind.damage(random_, bytesOf(name)));
  return {path, kind.name + ", "s + name};
}

}  // namespace tromelo::testing
