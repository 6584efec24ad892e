#include "tour.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QSpinBox>

#include "document/command_codes.h"
#include "ui/export/export_dialog.h"
#include "ui/export/export_view.h"

namespace kirto {

namespace {

constexpr QSize kWindowSize(1040, 680);
constexpr QSize kExportSize(960, 600);
constexpr int kLineHeight = 36;       // pixels, below the window
constexpr int kFrameWidth = 1;        // pixels, around a window before another
constexpr double kGlance = 60;        // hundredths of a second
constexpr double kLook = 140;         // the same
constexpr double kPlayedFrame = 8;    // the same
constexpr double kLastLook = 250;     // the same
constexpr int32 kThumbnails = 72;     // pixels high
constexpr int64 kExportMoment = 500;  // milliseconds from the start
constexpr int kRounds = 10;           // of making a few small pictures

}  // namespace

bool Tour::Make(const std::string& animation, const std::string& path) {
    editor_.StartNew();
    editor_.Main()->resize(kWindowSize);
    DrivenEditor::Settle(2);
    Open(animation);
    Play();
    Arrange();
    return Fade() && Export() && picture_.Write(path);
}

void Tour::Open(const std::string& animation) {
    says_ = "Open an animation, or drop images here";
    Take(kGlance);
    editor_.Open(animation);
    editor_.Main()->SetThumbnailHeight(kThumbnails);
    DrivenEditor::Settle(2);
    Take(kLook);
}

void Tour::Play() {
    says_ = "Play it, frame by frame where you like";
    editor_.Send(kShowPlayer);
    DrivenEditor::Settle(2);
    const int32 frames = editor_.Frames();
    for (int32 i = 0; i < frames; ++i) {
        editor_.SelectFrame(i);
        Take(kPlayedFrame);
    }
    Take(kGlance);
}

void Tour::Arrange() {
    says_ = "Select frames; turn them round, move, copy or retime them";
    editor_.SelectFrames("12-17");
    Take(kLook);
    editor_.Post(kReverseFrames);
    DrivenEditor::Settle(2);
    Take(kLook);
    editor_.Post(kUndo);
    DrivenEditor::Settle(2);
}

bool Tour::Fade() {
    says_ = "Fade into a color or into another frame";
    editor_.SelectFrame(editor_.Frames() - 1);
    QWidget* window = editor_.OpenWindow(kMenuFadeEffects, "Fade Effects");
    if (!window) return false;
    Take(kGlance, window);
    window->findChild<QLineEdit*>("FrameCount")->setText("8");
    DrivenEditor::Settle(2);
    Take(kLook, window);
    const int32 before = editor_.Frames();
    window->findChild<QAbstractButton*>("OK")->click();
    DrivenEditor::WaitUntil([&] { return editor_.Frames() > before; });
    const int32 after = editor_.Frames();
    for (int32 i = before; i < after; ++i) {
        editor_.SelectFrame(i);
        Take(kPlayedFrame);
    }
    Take(kGlance);
    return true;
}

bool Tour::Export() {
    says_ = "Export it as small as you need it";
    auto* dialog = dynamic_cast<ExportDialog*>(editor_.OpenWindow(kMenuExport, "Export"));
    if (!dialog) return false;
    dialog->resize(kExportSize);
    dialog->findChild<QCheckBox*>("Play")->setChecked(false);
    for (const int colors : {256, 64, 16}) {
        dialog->findChild<QSpinBox*>("Colors")->setValue(colors);
        DrivenEditor::WaitUntil([dialog] { return dialog->IsReady(); });
        dialog->findChild<ExportView*>("ExportView")->ShowTime(kExportMoment);
        DrivenEditor::Settle(kRounds);
        Take(kLook, dialog);
    }
    Take(kLastLook, dialog);
    dialog->close();
    DrivenEditor::Settle();
    return true;
}

void Tour::Take(double hundredths, QWidget* before) {
    QImage image(kWindowSize + QSize(0, kLineHeight), QImage::Format_RGB32);
    image.fill(QColor(32, 34, 37));
    QPainter painter(&image);
    painter.drawPixmap(0, 0, editor_.Main()->grab());
    if (before) {
        const QPixmap window = before->grab();
        QRect rect(QPoint(), window.size());
        rect.moveCenter(QRect(QPoint(), kWindowSize).center());
        painter.fillRect(QRect(QPoint(), kWindowSize), QColor(0, 0, 0, 90));
        painter.fillRect(rect.marginsAdded({kFrameWidth, kFrameWidth, kFrameWidth, kFrameWidth}),
                         QColor(32, 34, 37));
        painter.drawPixmap(rect.topLeft(), window);
    }
    painter.setPen(Qt::white);
    painter.drawText(QRect(0, kWindowSize.height(), kWindowSize.width(), kLineHeight),
                     Qt::AlignCenter, says_);
    painter.end();
    picture_.Add(image, hundredths);
}

}  // namespace kirto
