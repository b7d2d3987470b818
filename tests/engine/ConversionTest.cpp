#include "engine/MpvConversion.h"

#include <gtest/gtest.h>

#include "engine/MpvProperty.h"
#include "support/Table.h"

namespace tromelo::testing {

mpv_node textNode(const char* text) {
  return {.u = {.string = const_cast<char*>(text)}, .format = MPV_FORMAT_STRING};
}
mpv_node flagNode(int flag) { return {.u = {.flag = flag}, .format = MPV_FORMAT_FLAG}; }
mpv_node intNode(std::int64_t value) { return {.u = {.int64 = value}, .format = MPV_FORMAT_INT64}; }
mpv_node doubleNode(double value) { return {.u = {.double_ = value}, .format = MPV_FORMAT_DOUBLE}; }
mpv_node listNode(mpv_node_list* list, mpv_format format) {
  return {.u = {.list = list}, .format = format};
}

MpvValue changed(mpv_format format, void* data) { return mpvValue({"name", format, data}); }

TEST(Conversion, EveryFormatOfAChange) {
  const char* text = "a\xff";
  const char* noText = nullptr;
  int on = 2;
  int off = 0;
  std::int64_t count = -(std::int64_t{1} << 40);
  double position = 1.25;
  mpv_node node = intNode(7);
  mpv_node nothing{.u = {.int64 = 0}, .format = MPV_FORMAT_NONE};

  for (const auto& [what, got, expected] : Table<const char*, MpvValue, MpvValue>{
           {"text keeps its bytes", changed(MPV_FORMAT_STRING, &text), std::string("a\xff")},
           {"null text", changed(MPV_FORMAT_STRING, &noText), {}},
           {"flag that is not 0", changed(MPV_FORMAT_FLAG, &on), true},
           {"flag 0", changed(MPV_FORMAT_FLAG, &off), false},
           {"wide integer", changed(MPV_FORMAT_INT64, &count), count},
           {"double", changed(MPV_FORMAT_DOUBLE, &position), 1.25},
           {"node", changed(MPV_FORMAT_NODE, &node), MpvNode{std::int64_t{7}}},
           {"node without a value", changed(MPV_FORMAT_NODE, &nothing), {}},
           {"unavailable", changed(MPV_FORMAT_NONE, nullptr), {}},
           {"no data", changed(MPV_FORMAT_DOUBLE, nullptr), {}},
           {"a format that is never asked for", changed(MPV_FORMAT_OSD_STRING, &text), {}},
       })
    EXPECT_EQ(got, expected) << what;
}

TEST(Conversion, TreesLoseWhatHasNoValue) {
  mpv_node nothing{.u = {.int64 = 0}, .format = MPV_FORMAT_NONE};
  mpv_node values[] = {intNode(1), textNode("one"), textNode(nullptr), intNode(2), intNode(3)};
  char a[] = "a";
  char b[] = "b";
  char c[] = "c";
  char* keys[] = {a, b, c, nullptr, a};
  mpv_node_list entries{5, values, keys};
  mpv_node_list empty{0, nullptr, nullptr};
  mpv_node elements[] = {listNode(&entries, MPV_FORMAT_NODE_MAP),
                         nothing,
                         flagNode(1),
                         doubleNode(0.5),
                         listNode(nullptr, MPV_FORMAT_NODE_MAP),
                         listNode(&empty, MPV_FORMAT_NODE_ARRAY)};
  mpv_node_list list{6, elements, nullptr};

  const MpvMap expectedMap{{"a", MpvNode{std::int64_t{3}}}, {"b", MpvNode{std::string("one")}}};
  const MpvNode expected{MpvList{MpvNode{expectedMap}, MpvNode{true}, MpvNode{0.5},
                                 MpvNode{MpvMap{}}, MpvNode{MpvList{}}}};
  EXPECT_EQ(mpvNode(listNode(&list, MPV_FORMAT_NODE_ARRAY)), expected);
  EXPECT_EQ(mpvNode(listNode(nullptr, MPV_FORMAT_NODE_ARRAY)), MpvNode{MpvList{}});
}

}  // namespace tromelo::testing
