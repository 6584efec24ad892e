#include "ui/dialogs/video_dialog.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTimer>
#include <algorithm>
#include <array>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/picture_area.h"
#include "ui/controls/time_field.h"
#include "ui/dialogs/video_pictures.h"

namespace kirto {

namespace {

// What a new animation has unless more is asked for: larger ones take long to load in a browser.
constexpr double kUsualRate = 25;
constexpr int32 kUsualWidth = 640;
constexpr int kMillisecondsOfSecond = 1000;
constexpr double kUnknownDuration = 24 * 3600;  // seconds

class VideoDialog : public FormDialog {
  public:
    VideoDialog(const BMessage& command, const entry_ref& ref, QWidget* parent);
    void OpenFor(Receiver receive);

  private:
    void AddTimes();
    void AddCrop();
    void Begin(const PreviewedVideo& video);
    void TakePicture();
    void Fail(const QString& reason);
    std::optional<BMessage> Make() const;
    VideoCut Cut() const;
    QRect Area() const;
    void ShowMoment(double seconds);
    void PlayOn();
    void KeepScale();
    void Changed();

    const BMessage command_;
    std::optional<PreviewedVideo> video_;
    PictureArea* const picture_;
    TimeField* const start_;
    TimeField* const end_;
    QCheckBox* const plays_;
    QDoubleSpinBox* const rate_;
    QSpinBox* const width_;
    QLabel* const summary_;
    std::array<QSpinBox*, 4> sides_{};  // of the rectangle: left, top, width, height
    QTimer* const timer_ = new QTimer(this);
    double scale_ = 1;  // of the frames, as the user has wished it last
    double now_ = 0;    // the moment that is shown
    VideoPictures pictures_;
};

VideoDialog::VideoDialog(const BMessage& command, const entry_ref& ref, QWidget* parent)
    : FormDialog("InsertVideo", UiText::tr("Insert Video"),
                 UiText::tr("Makes frames of a part of the video \"%1\". Draw a rectangle on the "
                            "picture to cut it.")
                     .arg(QFile::decodeName(ref.Leaf().c_str())),
                 parent),
      command_(command),
      picture_(new PictureArea(Animation(), this)),
      start_(new TimeField("From", UiText::tr("From"), this)),
      end_(new TimeField("To", UiText::tr("To"), this)),
      plays_(new QCheckBox(UiText::tr("Pla&y"), this)),
      rate_(new QDoubleSpinBox(this)),
      width_(new QSpinBox(this)),
      summary_(new QLabel(UiText::tr("Reading the video..."), this)),
      pictures_(ref.path,
                {[this](const PreviewedVideo& video) { Begin(video); }, [this] { TakePicture(); },
                 [this](const QString& reason) { Fail(reason); }}) {
    setWindowModality(Qt::WindowModal);
    AddWide(picture_);
    AddTimes();
    rate_->setObjectName("Rate");
    rate_->setRange(VideoCut::kFewestFramesPerSecond, VideoCut::kMostFramesPerSecond);
    AddField(UiText::tr("Frames a &second:"), rate_);
    width_->setObjectName("Width");
    width_->setRange(1, 65535);
    width_->setSuffix(UiText::tr(" px"));
    AddField(UiText::tr("&Width:"), width_);
    AddCrop();
    summary_->setObjectName("Summary");
    summary_->setWordWrap(true);
    AddWide(summary_);
    connect(rate_, &QDoubleSpinBox::valueChanged, this, [this] { Changed(); });
    connect(width_, &QSpinBox::valueChanged, this, [this](int width) {
        scale_ = static_cast<double>(width) / std::max(Area().width(), 1);
        Changed();
    });
    timer_->setObjectName("Playing");
    start_->setFocus();
    connect(timer_, &QTimer::timeout, this, [this] { PlayOn(); });
}

void VideoDialog::OpenFor(Receiver receive) {
    Open([this] { return Make(); }, std::move(receive));
}

void VideoDialog::AddTimes() {
    AddField(UiText::tr("&From:"), start_);
    AddField(UiText::tr("&To:"), end_);
    start_->OnChange([this] {
        if (end_->Seconds() < start_->Seconds()) end_->SetSeconds(start_->Seconds());
        ShowMoment(start_->Seconds());
        Changed();
    });
    end_->OnChange([this] {
        if (start_->Seconds() > end_->Seconds()) start_->SetSeconds(end_->Seconds());
        ShowMoment(end_->Seconds());
        Changed();
    });
    plays_->setObjectName("Play");
    plays_->setChecked(true);
    AddWide(plays_);
    connect(plays_, &QCheckBox::toggled, this, [this](bool plays) {
        if (plays && !pictures_.Empty()) timer_->start();
        if (!plays) timer_->stop();
    });
}

void VideoDialog::AddCrop() {
    constexpr const char* kNames[] = {"CropLeft", "CropTop", "CropWidth", "CropHeight"};
    constexpr const char* kWords[] = {UiText::Later("Left"), UiText::Later("Top"),
                                      UiText::Later("Width of the cut"),
                                      UiText::Later("Height of the cut")};
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (size_t i = 0; i < sides_.size(); ++i) {
        sides_[i] = new QSpinBox(row);
        sides_[i]->setObjectName(kNames[i]);
        sides_[i]->setAccessibleName(UiText::tr(kWords[i]));
        sides_[i]->setToolTip(UiText::tr(kWords[i]));
        layout->addWidget(sides_[i], 1);
        connect(sides_[i], &QSpinBox::valueChanged, this, [this] { KeepScale(); });
    }
    AddField(UiText::tr("C&ut (x, y, w, h):"), row);
    row->setFocusProxy(sides_[0]);
    picture_->LetDraw([this](const QRect& area) {
        const std::array<int, 4> values = {area.left(), area.top(), area.width(), area.height()};
        for (size_t i = 0; i < sides_.size(); ++i) {
            const QSignalBlocker blocker(sides_[i]);
            sides_[i]->setValue(values[i]);
        }
        KeepScale();
    });
}

void VideoDialog::Begin(const PreviewedVideo& video) {
    const VideoProperties& found = video.video;
    const int width = static_cast<int>(found.width);
    const int height = static_cast<int>(found.height);
    const double last = found.seconds > 0 ? found.seconds : kUnknownDuration;
    const double own =
        static_cast<double>(found.rate_numerator) / static_cast<double>(found.rate_denominator);
    start_->SetRange(last, 0);
    end_->SetRange(last, last);
    rate_->setValue(std::min(own, kUsualRate));
    const std::array<int, 4> first = {0, 0, 1, 1};
    const std::array<int, 4> most = {width - 1, height - 1, width, height};
    const std::array<int, 4> values = {0, 0, width, height};
    for (size_t i = 0; i < sides_.size(); ++i) {
        sides_[i]->setRange(first[i], most[i]);
        sides_[i]->setValue(values[i]);
    }
    width_->setValue(std::min(width, kUsualWidth));
    video_ = video;
    now_ = 0;
    timer_->setInterval(std::max(qRound(kMillisecondsOfSecond / pictures_.Rate()), 1));
    if (plays_->isChecked()) timer_->start();
    Changed();
}

void VideoDialog::TakePicture() {
    if (!timer_->isActive()) ShowMoment(now_);
    Check();
}

void VideoDialog::Fail(const QString& reason) {
    summary_->setText(reason);
    timer_->stop();
}

QRect VideoDialog::Area() const {
    return {sides_[0]->value(), sides_[1]->value(), sides_[2]->value(), sides_[3]->value()};
}

VideoCut VideoDialog::Cut() const {
    VideoCut cut;
    cut.start = start_->Seconds();
    if (!end_->IsLast()) cut.end = end_->Seconds();
    cut.rate = rate_->value();
    const QRect area = Area();
    const QRect whole(0, 0, static_cast<int>(video_->video.width),
                      static_cast<int>(video_->video.height));
    if (area != whole) cut.area = VideoArea{area.x(), area.y(), area.width(), area.height()};
    if (width_->value() != area.width()) cut.width = width_->value();
    return cut;
}

std::optional<BMessage> VideoDialog::Make() const {
    if (!video_ || pictures_.Empty()) return std::nullopt;
    const VideoCut cut = Cut();
    if ((cut.end && *cut.end <= cut.start) || !FramesOf(video_->video, cut)) return std::nullopt;
    BMessage command = command_;
    command.what = kOpenFile;
    command.AddString("video", cut.Text());
    return command;
}

void VideoDialog::ShowMoment(double seconds) {
    now_ = seconds;
    if (!video_) return;
    picture_->ShowImage(pictures_.At(seconds), QSize(static_cast<int>(video_->video.width),
                                                     static_cast<int>(video_->video.height)));
}

// The part that is chosen, again and again.
void VideoDialog::PlayOn() {
    const double next = now_ + 1 / pictures_.Rate();
    ShowMoment(next > end_->Seconds() || next < start_->Seconds() ? start_->Seconds() : next);
}

// The frames become smaller with the rectangle that they are cut from.
void VideoDialog::KeepScale() {
    const QSignalBlocker blocker(width_);
    width_->setValue(qRound(Area().width() * scale_));
    Changed();
}

void VideoDialog::Changed() {
    if (!video_) return;
    const auto frames = FramesOf(video_->video, Cut());
    summary_->setText(frames ? QString::fromStdString(DescribeFrames(*frames)) + '.'
                             : UiText::tr("This part is not in the video."));
    const bool whole = Area().size() == QSize(static_cast<int>(video_->video.width),
                                              static_cast<int>(video_->video.height));
    picture_->ShowArea(whole ? QRect() : Area());
    Check();
}

}  // namespace

void AskForVideoPart(const BMessage& command, QWidget* parent, FormDialog::Receiver receive) {
    entry_ref ref;
    if (command.FindRef("refs", &ref) != B_OK) return;
    auto* dialog = new VideoDialog(command, ref, parent);
    dialog->OpenFor(std::move(receive));
}

}  // namespace kirto
