#include "FuzzedModel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaProperty>
#include <array>
#include <string_view>

#include "Targets.h"
#include "support/WaitFor.h"

namespace tromelo::fuzz {

namespace {

struct Kind {
  std::string_view name;
  mpv_event_id id;
};
constexpr std::array kKinds{
    Kind{"reply", MPV_EVENT_COMMAND_REPLY},  Kind{"log", MPV_EVENT_LOG_MESSAGE},
    Kind{"start", MPV_EVENT_START_FILE},     Kind{"end", MPV_EVENT_END_FILE},
    Kind{"loaded", MPV_EVENT_FILE_LOADED},   Kind{"restart", MPV_EVENT_PLAYBACK_RESTART},
    Kind{"video", MPV_EVENT_VIDEO_RECONFIG}, Kind{"idle", MPV_EVENT_IDLE},
    Kind{"shutdown", MPV_EVENT_SHUTDOWN}};

/// JSON has no document of a single value.
QJsonValue parse(std::string_view text) {
  const auto whole = '[' + QByteArray(text) + ']';
  return QJsonDocument::fromJson(whole).array().first();
}

}  // namespace

FuzzedModel::FuzzedModel()
    : model_(std::make_unique<PlaybackModel>(PlaybackModel::Parts{
          .api = mpv_.api(),
          .clock = clock_,
          .files = chooser_,
          .defaults = defaults_,
          .diagnosticsDirectory = directory_.filePath("state/diagnostics"),
          .makePlayer =
              [this](PlaybackModel&) { return std::make_unique<testing::FakePlayer>(player_); },
          .fileExists = [](const std::string&) { return true; },
          .mountedPath = [](const QUrl&) { return std::string(); }})) {}

const char* FuzzedModel::textOf(const QJsonValue& value) {
  return texts_.emplace_back(value.toString().toLatin1().toStdString()).c_str();
}

mpv_node FuzzedModel::nodeOf(const QJsonValue& value) {
  mpv_node node{};
  constexpr std::array kNoNumbers{"nan", "inf", "-inf"};  // which JSON hasn't
  if (value.isString() && std::ranges::count(kNoNumbers, value.toString())) {
    node.format = MPV_FORMAT_DOUBLE;
    node.u.double_ = value.toString().toDouble();
  } else if (value.isString()) {
    node.format = MPV_FORMAT_STRING;
    node.u.string = const_cast<char*>(textOf(value));
  } else if (value.isBool()) {
    node.format = MPV_FORMAT_FLAG;
    node.u.flag = value.toBool();
  } else if (value.isDouble()) {
    const auto number = value.toInteger(INT64_MIN);
    node.format = number == INT64_MIN ? MPV_FORMAT_DOUBLE : MPV_FORMAT_INT64;
    if (number == INT64_MIN)
      node.u.double_ = value.toDouble();
    else
      node.u.int64 = number;
  } else if (value.isArray() || value.isObject()) {
    const QJsonObject map = value.toObject();
    const QJsonArray list = value.toArray();
    auto& keys = keys_.emplace_back();
    std::vector<mpv_node> nodes;
    for (const auto& element : list) nodes.push_back(nodeOf(element));
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
      nodes.push_back(nodeOf(entry.value()));
      keys.push_back(const_cast<char*>(textOf(entry.key())));
    }
    auto& values = values_.emplace_back(std::move(nodes));
    node.format = value.isArray() ? MPV_FORMAT_NODE_ARRAY : MPV_FORMAT_NODE_MAP;
    node.u.list = &lists_.emplace_back(
        mpv_node_list{int(values.size()), values.data(), keys.empty() ? nullptr : keys.data()});
  }
  return node;
}

bool FuzzedModel::report(Input line) {
  const auto name = line.word();
  const auto kind = std::ranges::find(kKinds, name, &Kind::name);
  const QJsonValue value = parse(line.rest());
  if (kind == kKinds.end() && !reportProperty(name, value)) return false;
  if (kind != kKinds.end()) queue(kind->id, value);
  model_->engine().drainEvents();
  clock_.advance(std::chrono::milliseconds(300));
  texts_.clear(), values_.clear(), keys_.clear(), lists_.clear();
  return true;
}

void FuzzedModel::queue(mpv_event_id id, const QJsonValue& value) {
  static mpv_event_command reply;
  static mpv_event_log_message log;
  static mpv_event_start_file start;
  static mpv_event_end_file end;
  const int error = int(value[QStringLiteral("error")].toInteger());
  const auto entry = value[QStringLiteral("playlist_entry_id")].toInteger();
  void* data = nullptr;
  if (id == MPV_EVENT_COMMAND_REPLY) {
    reply.result = nodeOf(value);
    data = &reply;
  } else if (id == MPV_EVENT_LOG_MESSAGE) {
    log = {textOf(value[QStringLiteral("prefix")]), "warn", textOf(value[QStringLiteral("text")]),
           MPV_LOG_LEVEL_WARN};
    data = &log;
  } else if (id == MPV_EVENT_START_FILE) {
    start.playlist_entry_id = entry;
    data = &start;
  } else if (id == MPV_EVENT_END_FILE) {
    end = {mpv_end_file_reason(value[QStringLiteral("reason")].toInt() & 7), error, entry, 0, 0};
    data = &end;
  }
  mpv_.queue(id, data, 0, error);
}

bool FuzzedModel::reportProperty(std::string_view name, const QJsonValue& value) {
  static mpv_event_property change;
  static mpv_node node;
  static const char* text;
  for (const MpvProperty property : allMpvProperties()) {
    if (mpvPropertyName(property) != name) continue;
    node = nodeOf(value);
    const auto format = mpv_format(mpvPropertyFormat(property));
    void* data = &node.u;
    // The engine gives what it was asked for, or nothing.
    const bool isNumber = node.format == MPV_FORMAT_INT64 && format == MPV_FORMAT_DOUBLE;
    if (isNumber) node = {.u = {.double_ = value.toDouble()}, .format = MPV_FORMAT_DOUBLE};
    if (node.format == MPV_FORMAT_STRING) data = &(text = node.u.string);
    if (format == MPV_FORMAT_NODE) data = &node;
    if (format != MPV_FORMAT_NODE && node.format != format) data = nullptr;
    change = {mpvPropertyName(property), data ? format : MPV_FORMAT_NONE, data};
    mpv_.queue(MPV_EVENT_PROPERTY_CHANGE, &change, std::uint64_t(property));
    return true;
  }
  return false;
}

void FuzzedModel::checkAll() {
  testing::settle();
  const QMetaObject* type = model_->metaObject();
  for (int i = 0; i < type->propertyCount(); ++i) type->property(i).read(model_.get());
  for (const auto& words : std::exchange(mpv_.requests, {}))
    for (const std::string& word : words) check(word != "nan" && word != "-nan");
}

/// An event of the engine's a line.
void engine(Input input) {
  FuzzedModel fuzzed;
  while (!input.isEmpty()) fuzzed.report(Input(input.line()));
  fuzzed.checkAll();
}

}  // namespace tromelo::fuzz
