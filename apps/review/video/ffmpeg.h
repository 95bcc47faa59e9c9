// SPDX-License-Identifier: MIT
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libavutil/imgutils.h>
#include <libswscale/swscale.h>
}

#include <QString>

#include <memory>

namespace Review {

struct FFmpegDeleter
{
    void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(SwsContext* context) const { sws_freeContext(context); }
};

using FormatContext = std::unique_ptr<AVFormatContext, FFmpegDeleter>;
using CodecContext = std::unique_ptr<AVCodecContext, FFmpegDeleter>;
using Packet = std::unique_ptr<AVPacket, FFmpegDeleter>;
using DecodedFrame = std::unique_ptr<AVFrame, FFmpegDeleter>;
using Scaler = std::unique_ptr<SwsContext, FFmpegDeleter>;

/// Keeps the libraries from writing to the console; errors are told by results.
inline void silenceFFmpeg()
{
    av_log_set_callback([](void*, int, const char*, va_list) {});
}

inline QString ffmpegText(int error)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return QString::fromUtf8(text);
}

} // namespace Review
