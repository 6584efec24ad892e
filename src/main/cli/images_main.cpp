// kirto-cli-images: kirto-cli that writes the image formats of Qt, exports, and has Qt's fonts.
#include <QGuiApplication>
#include <clocale>
#include <memory>
#include <utility>

#include "app/export/fit_under.h"
#include "kit/decoding/decoder_program.h"
#include "kit/decoding/decoding_roster.h"
#include "kit/qt/qt_translator_roster.h"
#include "kit/qt/text_picture.h"
#include "main/cli/cli_program.h"

namespace {

// What Qt has to remark about the surroundings of a program without a screen is of no use here.
void IgnoreRemark(QtMsgType, const QMessageLogContext&, const QString&) {}

// What Qt's image formats need: an application object, but no screen.
class ImageSupport {
  public:
    ImageSupport() {
        qInstallMessageHandler(IgnoreRemark);
        kirto::QtTranslatorRoster::RestrictPluginFolders();
        application_ = std::make_unique<QGuiApplication>(argc_, argv_);
        kirto::QtTranslatorRoster::RestrictPluginFolders();
        // The application object takes over the user's locale; numbers stay as they are without it.
        std::setlocale(LC_NUMERIC, "C");
    }

  private:
    char name_[10] = "kirto-cli";
    char option_[10] = "-platform";
    char platform_[10] = "offscreen";
    int argc_ = 3;
    char* argv_[4] = {name_, option_, platform_, nullptr};
    std::unique_ptr<QGuiApplication> application_;
};

kirto::CaptionPicture DrawCaption(const kirto::Caption& caption) {
    kirto::TextStyle style;
    if (!caption.font.empty()) style.font.setFamily(QString::fromStdString(caption.font));
    style.font.setPixelSize(caption.size.value_or(kirto::kSmallestCaption));
    style.color = QColor::fromRgb(caption.color);
    style.outline = QColor::fromRgb(caption.outline_color);
    style.outline_width = caption.outline;
    const QImage image = kirto::PictureOfText(QString::fromStdString(caption.text), style);
    return {kirto::PngOf(image), image.width(), image.height()};
}

}  // namespace

int main(int argc, char** argv) {
    kirto::PrepareCliProcess();
    kirto::CliArguments arguments;
    if (const auto status = kirto::ParseArguments(argc, argv, &arguments)) return *status;
    const ImageSupport image_support;
    kirto::QtTranslatorRoster writers;
    kirto::DecodingRoster roster(kirto::DecoderProgram(), writers);
    return kirto::RunCliProgram(std::move(arguments), roster, DrawCaption, kirto::ExportWithin);
}
