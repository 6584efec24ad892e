#include "kit/animated/webp_writer.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <webp/encode.h>
#include <webp/mux.h>

namespace kirto {

namespace {

constexpr int32 kMostPlays = 65535;
// Of what the library can do to make it smaller, 0 to 6 and 0 to 9.
constexpr int kLossyEffort = 4;
constexpr int kLosslessEffort = 6;

bool Configure(const AnimatedImageQuality& quality, WebPConfig* config) {
    if (!WebPConfigInit(config)) return false;
    if (!quality.lossy) return WebPConfigLosslessPreset(config, kLosslessEffort) != 0;
    config->quality = static_cast<float>(std::clamp(*quality.lossy, 0, 100));
    config->method = kLossyEffort;
    return WebPValidateConfig(config) != 0;
}

int GoOn(int, const WebPPicture* picture) {
    const auto* quality = static_cast<const AnimatedImageQuality*>(picture->user_data);
    return quality->stopped && quality->stopped() ? 0 : 1;
}

}  // namespace

void WebpWriter::Deleter::operator()(WebPAnimEncoder* encoder) const {
    WebPAnimEncoderDelete(encoder);
}

WebpWriter::WebpWriter(const AnimatedImageHeader& header, AnimatedImageQuality quality)
    : header_(header), quality_(std::move(quality)) {
    if (std::min(header.width, header.height) < 1) return;
    if (std::max(header.width, header.height) > kMostPixelsOfASide) return;
    WebPAnimEncoderOptions options;
    if (!WebPAnimEncoderOptionsInit(&options)) return;
    options.anim_params.loop_count = std::clamp(header.plays, 0, kMostPlays);
    encoder_.reset(WebPAnimEncoderNew(header.width, header.height, &options));
}

WebpWriter::~WebpWriter() = default;

bool WebpWriter::Add(std::span<const uint8> canvas, int32 milliseconds) {
    const size_t stride = static_cast<size_t>(header_.width) * 4;
    if (!encoder_ || canvas.size() != stride * static_cast<size_t>(header_.height)) return false;
    if (shown_until_ + milliseconds > std::numeric_limits<int>::max()) return false;
    WebPConfig config;
    WebPPicture picture;
    if (!Configure(quality_, &config) || !WebPPictureInit(&picture)) return false;
    picture.use_argb = 1;
    picture.width = header_.width;
    picture.height = header_.height;
    picture.progress_hook = GoOn;
    picture.user_data = const_cast<AnimatedImageQuality*>(&quality_);
    bool added = WebPPictureImportBGRA(&picture, canvas.data(), static_cast<int>(stride)) != 0;
    added = added && WebPAnimEncoderAdd(encoder_.get(), &picture, static_cast<int>(shown_until_),
                                        &config) != 0;
    WebPPictureFree(&picture);
    shown_until_ += milliseconds;
    return added;
}

std::vector<uint8> WebpWriter::Finish() {
    if (!encoder_) return {};
    if (!WebPAnimEncoderAdd(encoder_.get(), nullptr, static_cast<int>(shown_until_), nullptr))
        return {};
    WebPData data;
    WebPDataInit(&data);
    std::vector<uint8> file;
    if (WebPAnimEncoderAssemble(encoder_.get(), &data))
        file.assign(data.bytes, data.bytes + data.size);
    WebPDataClear(&data);
    return file;
}

}  // namespace kirto
