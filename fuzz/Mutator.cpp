#include "Mutator.h"

#include <algorithm>
#include <cctype>

namespace tromelo::fuzz {

namespace {

constexpr std::size_t kLongest = 8 * 1024;  // bytes
constexpr std::size_t kMostWords = 4000;

bool isOfWord(unsigned char byte) {
  return std::isalnum(byte) || byte == '_' || byte == '.' || byte == '-' || byte >= 0x80;
}

/// Where the parts of `text` begin and end; one that is no part lies between each two.
template <typename IsOfPart>
std::vector<std::pair<std::size_t, std::size_t>> partsOf(const std::string& text, IsOfPart is) {
  std::vector<std::pair<std::size_t, std::size_t>> parts;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t start = i;
    while (i < text.size() && is(static_cast<unsigned char>(text[i]))) ++i;
    if (i > start) parts.emplace_back(start, i - start);
  }
  return parts;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < text.size();) {
    const auto end = std::min(text.find('\n', start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  if (lines.empty()) lines.emplace_back();
  return lines;
}

}  // namespace

void Mutator::know(std::string input) {
  for (const auto& [start, length] : partsOf(input, isOfWord))
    if (length < 100 && words_.size() < kMostWords) {
      std::string word = input.substr(start, length);
      if (std::ranges::find(words_, word) == words_.end()) words_.push_back(std::move(word));
    }
  inputs_.push_back(std::move(input));
}

std::string Mutator::make() {
  if (inputs_.empty()) know({});
  // What was found last has been tried least.
  const std::size_t first =
      below(2) ? 0 : inputs_.size() - std::min<std::size_t>(inputs_.size(), 20);
  std::string text = inputs_[first + below(inputs_.size() - first)];
  for (std::size_t times = std::size_t{1} << below(5); times > 0; --times) {
    switch (below(3)) {
      case 0:
        changeBytes(text);
        break;
      case 1:
        changeWords(text);
        break;
      default:
        changeLines(text);
    }
  }
  if (text.size() > kLongest) text.resize(kLongest);
  return text;
}

void Mutator::changeBytes(std::string& text) {
  const std::size_t place = below(text.size() + 1);
  const std::size_t length = std::min(below(16) + 1, text.size() - place);
  switch (below(5)) {
    case 0:
      if (place < text.size()) text[place] = static_cast<char>(text[place] ^ (1U << below(8)));
      break;
    case 1:
      text.insert(place, 1, static_cast<char>(below(256)));
      break;
    case 2:
      text.erase(place, length);
      break;
    case 3:
      text.insert(below(text.size() + 1), text.substr(place, length));
      break;
    default:
      text.insert(place, below(300), static_cast<char>(below(256)));
  }
}

void Mutator::changeWords(std::string& text) {
  const auto words = partsOf(text, isOfWord);
  if (words.empty()) return text.append(any(words_)), void();
  const auto [start, length] = words[below(words.size())];
  text.replace(start, below(4) ? length : 0, any(words_));
}

void Mutator::changeLines(std::string& text) {
  std::vector<std::string> lines = linesOf(text);
  const auto at = [&] { return lines.begin() + std::ptrdiff_t(below(lines.size())); };
  switch (below(5)) {
    case 0:
      lines.erase(at());
      break;
    case 1: {
      const std::string line = *at();
      lines.insert(at(), line);
      break;
    }
    case 2:
      std::iter_swap(at(), at());
      break;
    case 3:
      lines.insert(at(), any(linesOf(any(inputs_))));
      break;
    default: {
      lines.resize(below(lines.size()) + 1);
      const auto others = linesOf(any(inputs_));
      lines.insert(lines.end(), others.begin() + std::ptrdiff_t(below(others.size())),
                   others.end());
    }
  }
  text.clear();
  for (const std::string& line : lines) text += line + '\n';
}

}  // namespace tromelo::fuzz
