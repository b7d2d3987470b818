#include "lines/LineReader.h"

#include <sys/prctl.h>

#include <csignal>
#include <cstdio>

#include "lines/LineInput.h"
#include "lines/LineText.h"
#include "platform/ProcessLimits.h"

namespace tromelo {

namespace {

constexpr int kMostLines = 200'000;

/// The subtitles of a file, decoded one after the other.
class Subtitles {
 public:
  Subtitles(const AvLibraries& av, AVIOContext& io) : av_(av), packet_(av.av_packet_alloc()) {
    film_ = av_.avformat_alloc_context();
    film_->pb = &io;
  }
  ~Subtitles() {
    av_.av_packet_free(&packet_);
    av_.avcodec_free_context(&decoder_);
    av_.avformat_close_input(&film_);
  }
  Subtitles(const Subtitles&) = delete;
  Subtitles& operator=(const Subtitles&) = delete;

  bool open(const LineRequest& request) {
    AVDictionary* options = nullptr;
    av_.av_dict_set(&options, "protocol_whitelist", "none", 0);
    // The name helps to tell the format.
    const int code = av_.avformat_open_input(&film_, request.path.c_str(), nullptr, &options);
    av_.av_dict_free(&options);
    return code >= 0 && choose(request.stream) && openDecoder();
  }

  bool readAll(const std::function<void(const SubtitleLine&)>& tell) {
    int count = 0;
    int code = 0;
    for (; count < kMostLines && (code = av_.av_read_frame(film_, packet_)) >= 0; ++count) {
      if (packet_->stream_index == stream_->index) decode(tell);
      av_.av_packet_unref(packet_);
    }
    return code == AVERROR_EOF;
  }

 private:
  bool choose(int wanted) {
    for (unsigned i = 0; i < film_->nb_streams; ++i) {
      AVStream& each = *film_->streams[i];
      each.discard = AVDISCARD_ALL;
      const bool isMeant = wanted < 0 ? !stream_ : each.index == wanted;
      if (isMeant && each.codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE) stream_ = &each;
    }
    if (stream_) stream_->discard = AVDISCARD_DEFAULT;
    return stream_;
  }

  bool openDecoder() {
    const AVCodec* codec = av_.avcodec_find_decoder(stream_->codecpar->codec_id);
    decoder_ = codec ? av_.avcodec_alloc_context3(codec) : nullptr;
    if (!decoder_ || av_.avcodec_parameters_to_context(decoder_, stream_->codecpar) < 0)
      return false;
    decoder_->pkt_timebase = stream_->time_base;
    return av_.avcodec_open2(decoder_, codec, nullptr) >= 0;
  }

  void decode(const std::function<void(const SubtitleLine&)>& tell) {
    AVSubtitle decoded{};
    int isThere = 0;
    if (packet_->pts == AV_NOPTS_VALUE ||
        av_.avcodec_decode_subtitle2(decoder_, &decoded, &isThere, packet_) < 0 || !isThere)
      return;
    const double unit = av_q2d(stream_->time_base);
    const double start = double(packet_->pts) * unit;
    const double length = double(std::max<std::int64_t>(packet_->duration, 0)) * unit;
    for (unsigned i = 0; i < decoded.num_rects; ++i) {
      const char* event = decoded.rects[i]->ass;
      const QString text = event ? textOfEvent(QString::fromUtf8(event)) : QString();
      if (!text.isEmpty()) tell({start, start + length, text});
    }
    av_.avsubtitle_free(&decoded);
  }

  const AvLibraries& av_;
  AVPacket* packet_;
  AVFormatContext* film_ = nullptr;
  AVStream* stream_ = nullptr;
  AVCodecContext* decoder_ = nullptr;
};

void say(const QByteArray& message) {
  std::fwrite(message.constData(), 1, static_cast<std::size_t>(message.size()), stdout);
}

}  // namespace

bool LineReader::read(const LineRequest& request, const Ears& ears) {
  const AvLibraries* av = AvLibraries::loaded();
  if (!av) return false;
  av->av_log_set_level(AV_LOG_QUIET);
  LineInput input(*av, request, ears.progress);
  if (!input.io()) return false;
  Subtitles subtitles(*av, *input.io());
  return subtitles.open(request) && subtitles.readAll(ears.line);
}

int runLineReader(std::span<char* const> arguments) {
  limitThisProcess();
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const auto request = LineRequest::parse({arguments.begin(), arguments.end()});
  if (!request) return 1;
  const bool areAll =
      LineReader::read(*request, {.line = [](const SubtitleLine& line) { say(lineMessage(line)); },
                                  .progress =
                                      [](double progress) {
                                        say(progressMessage(progress));
                                        if (std::fflush(stdout) != 0)
                                          std::_Exit(1);  // nobody listens any more
                                      }});
  if (!areAll) return 1;
  say(endMessage());
  return std::fflush(stdout) != 0;
}

}  // namespace tromelo
