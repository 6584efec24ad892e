#include "moving_picture.h"

#include <cstdio>
#include <fstream>
#include <vector>

#include "app/export/export_animation.h"
#include "kit/qt/image_bitmap.h"
#include "kit/qt/qt_translator_roster.h"

namespace kirto {

void MovingPicture::Add(const QImage& picture, double hundredths) {
    Frame frame("", picture.width(), picture.height());
    frame.bitmap =
        Picture::Of(BitmapOf(picture.convertToFormat(QImage::Format_RGB32), budget_), budget_);
    frame.use_pause = true;
    frame.pause_length = hundredths;
    if (animation_.frames.Empty()) {
        animation_.width = picture.width();
        animation_.height = picture.height();
        animation_.use_loop = true;
    }
    InsertFrame(animation_, animation_.frames.Size(),
                std::make_shared<const Frame>(std::move(frame)));
}

bool MovingPicture::Write(const std::string& path) const {
    QtTranslatorRoster roster;
    Work work;
    ExportFiles files;
    ExportSettings settings;
    settings.one_table = true;
    const ExportResult result = ExportAnimation(
        {std::make_shared<const Animation>(animation_), false, budget_, roster, work}, settings,
        &files);
    if (result != ExportResult::kDone) {
        std::fprintf(stderr, "kirto-pictures: %s\n",
                     SentenceOf(result, ExportFormat::kGif).c_str());
        return false;
    }
    const std::vector<uint8>& bytes = files.contents.front();
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return file.flush().good();
}

}  // namespace kirto
