#include "engine/MpvEngine.h"

#include <QFile>
#include <QThreadPool>
#include <cstdio>
#include <format>
#include <utility>

#include "engine/EngineEnvironment.h"
#include "engine/EngineLog.h"
#include "engine/MpvClientApi.h"
#include "engine/MpvEventQueue.h"
#include "engine/MpvOptions.h"
#include "engine/MpvTranslation.h"
#include "engine/WakeupTarget.h"
#include "platform/MainThread.h"

namespace tromelo {

namespace {

/// Carries a handle that nobody else uses any more to the thread that destroys it.
struct UncheckedHandle {
  mpv_handle* pointer = nullptr;
};

/// Half of what libmpv has room for: it sets a place aside for each reply, and drops the events
/// that then find none.
constexpr int kMostUnanswered = 500;

constexpr unsigned long kOldestClientApi = MPV_MAKE_VERSION(2, 3);

/// What is wrong with the library that the program found, if anything is.
std::optional<std::string> libraryFault(unsigned long version) {
  if (version == 0)
    return "The playback library libmpv was not found; install it (libmpv2) to play videos.";
  if (version < kOldestClientApi)
    return "The playback library libmpv is too old; install version 0.38 or newer to play videos.";
  return {};
}

int sendCommand(const MpvClientApi& api, mpv_handle* handle, const MpvCommand& command) {
  return api.commandAsync(handle, command.reply, mpvWords(command.arguments).data());
}

int sendWrite(const MpvClientApi& api, mpv_handle* handle, const MpvPropertyWrite& write) {
  const char* value = write.value.c_str();
  return api.setPropertyAsync(handle, 0, write.name.c_str(), MPV_FORMAT_STRING,
                              static_cast<void*>(&value));
}

}  // namespace

MpvEngine::MpvEngine(const MpvClientApi& api)
    : onEvent([](const MpvEvent&) {}),
      api_(std::make_shared<const MpvClientApi>(api)),
      wakeupTarget_(std::make_shared<WakeupTarget>()) {}

MpvEngine::~MpvEngine() {
  wakeupTarget_->engine = nullptr;
  // libmpv must not go on calling an object that is gone.
  if (handle_) api_->setWakeupCallback(handle_, nullptr, nullptr);
}

std::optional<std::string> MpvEngine::initialize(const QString& diagnosticsDirectory,
                                                 const std::string& vulkanDevice) {
  if (handle_) return {};
  if (auto fault = libraryFault(api_->clientApiVersion())) return fault;
  prepareEngineEnvironment(shippedVulkanManifest());
  handle_ = api_->create();
  if (!handle_) return "Could not create the playback engine";
  if (auto error = configure(diagnosticsDirectory, vulkanDevice)) {
    api_->terminateDestroy(std::exchange(handle_, nullptr));
    return error;
  }
  observe();
  if (prepareFile) preload_ = std::make_shared<PreloadHook>(api_, handle_, prepareFile);
  log_ = std::make_shared<EngineLog>(api_, handle_, logFile_);
  // An engine before this one, which may hang, ends when it likes.
  wakeupTarget_ = std::make_shared<WakeupTarget>();
  events_ = std::make_shared<MpvEventQueue>(api_, handle_, wakeupTarget_);
  events_->setQuiet(isQuiet_);
  wakeupTarget_->engine = this;
  api_->requestLogMessages(handle_, "warn");
  api_->setWakeupCallback(handle_, &WakeupTarget::wakeup, wakeupTarget_.get());
  return {};
}

std::optional<std::string> MpvEngine::configure(const QString& diagnosticsDirectory,
                                                const std::string& vulkanDevice) {
  const std::string before = std::exchange(
      logFile_, QFile::encodeName(diagnosticsDirectory + QStringLiteral("/mpv.log")).toStdString());
  // An engine that is replaced is one whose log says why.
  if (before == logFile_) std::rename(before.c_str(), (before + ".1").c_str());
  for (const auto& options :
       {engineOptions(logFile_), platformOptions(vulkanDevice), diagnosticOptions()}) {
    for (const MpvOption& option : options) {
      if (auto error = setOption(option)) return error;
    }
  }
  return mpvErrorText(*api_, api_->initialize(handle_));
}

std::optional<std::string> MpvEngine::setOption(const MpvOption& option) {
  const int code = api_->setOptionString(handle_, option.name.c_str(), option.value.c_str());
  if (code == MPV_ERROR_OPTION_NOT_FOUND && option.mayBeUnknown) return {};
  const auto error = mpvErrorText(*api_, code);
  if (!error || option.mayBeRefused) return {};
  return option.name + ": " + *error;
}

void MpvEngine::observe() {
  for (const MpvProperty property : allMpvProperties()) {
    api_->observeProperty(handle_, static_cast<std::uint64_t>(property), mpvPropertyName(property),
                          static_cast<mpv_format>(mpvPropertyFormat(property)));
  }
}

void MpvEngine::terminate(std::function<void()> completion) {
  if (!handle_) {
    completion();
    return;
  }
  const UncheckedHandle handle{std::exchange(handle_, nullptr)};
  waiting_.clear();
  unanswered_ = 0;
  owed_ = 0;
  refusals_.clear();
  reads_.clear();
  nodes_.clear();
  outcomes_.clear();
  wakeupTarget_->engine = nullptr;
  api_->setWakeupCallback(handle.pointer, nullptr, nullptr);
  ++*undestroyed_;
  // The application object waits for the pool before it is gone, so that the process never ends
  // under libmpv's threads.
  QThreadPool::globalInstance()->start([destroy = api_->terminateDestroy, handle,
                                        preload = std::move(preload_), log = std::move(log_),
                                        events = std::move(events_), left = undestroyed_,
                                        completion = std::move(completion)]() mutable {
    preload.reset();
    log.reset();
    events.reset();
    destroy(handle.pointer);
    --*left;
    postToMainThread(completion);
  });
}

void MpvEngine::command(std::vector<std::string> arguments) {
  send(MpvCommand{.arguments = std::move(arguments)});
}

void MpvEngine::command(std::vector<std::string> arguments, Outcome outcome) {
  if (!handle_) return;
  outcomes_.emplace(++lastReply_, std::move(outcome));
  send(MpvCommand{std::move(arguments), lastReply_});
}

void MpvEngine::setProperty(std::string name, std::string value) {
  send(MpvPropertyWrite{std::move(name), std::move(value)});
}

void MpvEngine::readProperty(std::string name, Answer answer) {
  if (!handle_) return;
  reads_.emplace(++lastReply_, std::move(answer));
  send(MpvPropertyRead{std::move(name), lastReply_});
}

void MpvEngine::readNode(std::string name, NodeAnswer answer) {
  if (!handle_) return;
  nodes_.emplace(++lastReply_, std::move(answer));
  send(MpvPropertyRead{std::move(name), lastReply_, true});
}

void MpvEngine::answerRead(const TakenEvent& reply) {
  if (const auto node = nodes_.extract(reply.reply)) return node.mapped()(reply.value);
  const auto read = reads_.extract(reply.reply);
  if (!read) return;
  const auto* text = reply.value.as<std::string>();
  read.mapped()(text ? std::optional(*text) : std::nullopt);
}

void MpvEngine::setLogging(bool writes) {
  if (log_) log_->setWriting(writes);
  // It may not have taken the engine's place yet.
  if (!writes) setProperty("log-file", "");
}

std::string MpvEngine::clientApiVersion() const {
  const unsigned long version = api_->clientApiVersion();
  return std::format("{}.{}", version >> 16, version & 0xffff);
}

void MpvEngine::send(MpvRequest request) {
  if (!handle_) return;
  const bool isHeldUp = !waiting_.empty();
  waiting_.push_back(std::move(request));
  // The engine makes room by answering, and what waits is sent then.
  if (!isHeldUp) sendWaiting();
}

void MpvEngine::sendWaiting() {
  while (handle_ && !waiting_.empty() && unanswered_ < kMostUnanswered) {
    const int code = trySend(waiting_.front());
    if (code == MPV_ERROR_EVENT_QUEUE_FULL) return;
    if (code >= 0) noteTaken(waiting_.front());
    if (const auto* command = std::get_if<MpvCommand>(&waiting_.front()))
      noteRefusal(*command, code);
    waiting_.pop_front();
  }
}

void MpvEngine::noteTaken(const MpvRequest& request) {
  ++unanswered_;
  if (!std::holds_alternative<MpvPropertyRead>(request) && owed_++ == 0 && onTold) onTold();
}

void MpvEngine::noteRefusal(const MpvCommand& command, int code) {
  auto error = mpvErrorText(*api_, code);
  if (!error) return;
  refusals_.push_back({command.reply, std::move(*error)});
  WakeupTarget::wakeup(wakeupTarget_.get());
}

int MpvEngine::trySend(const MpvRequest& request) {
  if (const auto* command = std::get_if<MpvCommand>(&request)) {
    return sendCommand(*api_, handle_, *command);
  }
  if (const auto* read = std::get_if<MpvPropertyRead>(&request)) {
    return api_->getPropertyAsync(handle_, read->reply, read->name.c_str(),
                                  read->isNode ? MPV_FORMAT_NODE : MPV_FORMAT_OSD_STRING);
  }
  return sendWrite(*api_, handle_, std::get<MpvPropertyWrite>(request));
}

bool MpvEngine::tellOutcome(std::uint64_t reply, const std::optional<std::string>& error) {
  const auto outcome = outcomes_.extract(reply);
  if (outcome) outcome.mapped()(error);
  return !outcome.empty();
}

void MpvEngine::tellRefusals() {
  for (const Refusal& refusal : std::exchange(refusals_, {})) {
    if (handle_ && !tellOutcome(refusal.reply, refusal.error))
      onEvent(event::CommandFailed{refusal.error});
  }
}

void MpvEngine::drainEvents() {
  ++draining_;
  tellRefusals();
  while (handle_) {
    const auto taken = events_->next();
    if (!taken) break;
    handle(*taken);
  }
  --draining_;
  sendWaiting();
}

void MpvEngine::handle(const TakenEvent& taken) {
  if (taken.isReply()) --unanswered_;
  if (taken.isReply() && taken.id != MPV_EVENT_GET_PROPERTY_REPLY) --owed_;
  if (taken.id == MPV_EVENT_GET_PROPERTY_REPLY) answerRead(taken);
  if (taken.id == MPV_EVENT_COMMAND_REPLY &&
      tellOutcome(taken.reply, mpvErrorText(*api_, taken.error)))
    return;
  if (taken.event) onEvent(*taken.event);
}

void MpvEngine::catchUp() {
  if (draining_ == 0) drainEvents();
}

bool MpvEngine::moves() const { return events_ && events_->moves(); }

void MpvEngine::setQuiet(bool quiet) {
  if (std::exchange(isQuiet_, quiet) == quiet || !events_) return;
  events_->setQuiet(quiet);
  // What waits is told at once, and no wakeup has come between.
  WakeupTarget::wakeup(wakeupTarget_.get());
}

}  // namespace tromelo
