#pragma once

#include <random>
#include <string>
#include <vector>

namespace tromelo::fuzz {

/// Makes new inputs out of those that are known: bytes, words and lines are changed, taken out,
/// doubled, swapped, and taken over from others. The same seed makes the same.
class Mutator {
 public:
  explicit Mutator(unsigned seed) : random_(seed) {}

  void know(std::string input);
  std::size_t known() const { return inputs_.size(); }
  std::string make();

 private:
  std::size_t below(std::size_t limit) { return limit ? random_() % limit : 0; }
  const std::string& any(const std::vector<std::string>& of) { return of[below(of.size())]; }
  void changeBytes(std::string& text);
  void changeWords(std::string& text);
  void changeLines(std::string& text);

  std::mt19937 random_;
  std::vector<std::string> inputs_;
  std::vector<std::string> words_{"0",     "-1",         "1",        "nan",  "9223372036854775807",
                                  "1e308", "2147483648", "\xff\xfe", "",     "null",
                                  "[]",    "{}",         "\"\"",     "true", "..",
                                  "%00"};
};

}  // namespace tromelo::fuzz
