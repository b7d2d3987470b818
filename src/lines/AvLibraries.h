#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace tromelo {

/// The functions of libavformat, libavcodec and libavutil that read subtitles: the engine's own,
/// which come with it, of the version whose headers we were built with. Loaded and not linked, as
/// the engine is. Null where there are none.
#define TROMELO_AV_FUNCTIONS(FUNCTION)           \
  FUNCTION(format, avformat_alloc_context)       \
  FUNCTION(format, avformat_open_input)          \
  FUNCTION(format, avformat_close_input)         \
  FUNCTION(format, av_read_frame)                \
  FUNCTION(format, avio_alloc_context)           \
  FUNCTION(format, avio_context_free)            \
  FUNCTION(codec, avcodec_find_decoder)          \
  FUNCTION(codec, avcodec_alloc_context3)        \
  FUNCTION(codec, avcodec_parameters_to_context) \
  FUNCTION(codec, avcodec_open2)                 \
  FUNCTION(codec, avcodec_decode_subtitle2)      \
  FUNCTION(codec, avcodec_free_context)          \
  FUNCTION(codec, avsubtitle_free)               \
  FUNCTION(codec, av_packet_alloc)               \
  FUNCTION(codec, av_packet_unref)               \
  FUNCTION(codec, av_packet_free)                \
  FUNCTION(util, av_dict_set)                    \
  FUNCTION(util, av_dict_free)                   \
  FUNCTION(util, av_log_set_level)               \
  FUNCTION(util, av_malloc)                      \
  FUNCTION(util, av_freep)

struct AvLibraries {
#define TROMELO_DECLARE(library, name) decltype(&::name) name = nullptr;
  TROMELO_AV_FUNCTIONS(TROMELO_DECLARE)
#undef TROMELO_DECLARE

  static const AvLibraries* loaded();
};

}  // namespace tromelo
