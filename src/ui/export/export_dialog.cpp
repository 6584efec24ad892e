#include "ui/export/export_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/save_animation.h"
#include "base/core_text.h"
#include "kit/alert.h"
#include "kit/qt/ui_text.h"
#include "ui/export/export_view.h"

namespace kirto {

namespace {

constexpr int kExportWidth = 1000;
constexpr int kExportHeight = 620;
constexpr double kLargeLetters = 1.8;

const char* ExtensionOf(ExportFormat format) {
    switch (format) {
        case ExportFormat::kGif:
            return "gif";
        case ExportFormat::kWebp:
            return "webp";
        case ExportFormat::kApng:
            return "png";
        case ExportFormat::kMp4:
            return "mp4";
        case ExportFormat::kWebm:
            return "webm";
    }
    return "";
}

QString SizeTextOf(size_t bytes) {
    return QLocale(QLocale::English)
        .formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

QString SentenceOfFailure(const ExportTrial::Outcome& outcome, ExportFormat format) {
    QString text = QString::fromStdString(SentenceOf(outcome.result, format));
    if (outcome.result == ExportResult::kTooManyBytes)
        text += UiText::tr(" The smallest that was tried has %1.")
                    .arg(SizeTextOf(static_cast<size_t>(outcome.file.smallest)));
    return text;
}

// Empty where it is written.
QString WriteBytes(const std::string& path, const std::vector<uint8>& bytes) {
    const auto file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) return kFileNotCreatedText;
    file->RemoveLeftovers();
    file->Write(bytes.data(), bytes.size());
    return file->Commit() == B_OK ? "" : kFileNotCreatedText;
}

}  // namespace

ExportDialog::ExportDialog(Source source, QWidget* parent)
    : QDialog(parent),
      source_(std::move(source)),
      view_(new ExportView(this)),
      form_(new ExportForm(this)),
      preset_(new QComboBox(this)),
      remove_(new QPushButton(UiText::tr("Remo&ve"), this)),
      size_(new QLabel(this)),
      given_up_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Close, this)),
      export_(buttons_->addButton(UiText::tr("E&xport..."), QDialogButtonBox::AcceptRole)) {
    setObjectName("Export");
    setWindowTitle(UiText::tr("Export"));
    setAttribute(Qt::WA_DeleteOnClose);
    Arrange();
    resize(kExportWidth, kExportHeight);
    view_->ShowOriginal(source_.animation, source_.pause_in_seconds);
    form_->ShowWish(presets_.Last());
    form_->WhenChanged([this] {
        ListPresets("");
        TryAgain();
    });
    form_->WhenFormatChanged(
        [this](ExportFormat format) { form_->ShowWish(presets_.Last(format)); });
    connect(export_, &QPushButton::clicked, this, [this] { Choose(); });
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    TryAgain();
}

ExportDialog::~ExportDialog() {
    if (trial_) trial_->Stop();
}

void ExportDialog::Arrange() {
    size_->setObjectName("Size");
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kLargeLetters);
    size_->setFont(large);
    given_up_->setObjectName("GivenUp");
    given_up_->setWordWrap(true);
    export_->setObjectName("Export");
    auto* plays = new QCheckBox(UiText::tr("Pla&y"), this);
    plays->setObjectName("Play");
    plays->setChecked(true);
    connect(plays, &QCheckBox::toggled, view_, &ExportView::SetPlaying);
    auto* side = new QVBoxLayout;
    side->addWidget(MakePresets());
    side->addWidget(form_);
    side->addStretch();
    side->addWidget(size_);
    side->addWidget(given_up_);
    side->addWidget(plays);
    auto* top = new QHBoxLayout;
    top->addWidget(view_, 1);
    top->addLayout(side);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addWidget(buttons_);
}

QWidget* ExportDialog::MakePresets() {
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(UiText::tr("&Preset:"), row);
    label->setBuddy(preset_);
    preset_->setObjectName("Preset");
    preset_->setAccessibleName(UiText::tr("Preset"));
    auto* keep = new QPushButton(UiText::tr("Keep &As..."), row);
    keep->setObjectName("KeepPreset");
    remove_->setObjectName("RemovePreset");
    for (QPushButton* button : {keep, remove_})
        button->setAutoDefault(false);
    layout->addWidget(label);
    layout->addWidget(preset_, 1);
    layout->addWidget(keep);
    layout->addWidget(remove_);
    ListPresets("");
    connect(preset_, &QComboBox::activated, this, [this] { ShowPreset(preset_->currentText()); });
    connect(keep, &QPushButton::clicked, this, [this] { KeepPreset(); });
    connect(remove_, &QPushButton::clicked, this, [this] { RemovePreset(); });
    return row;
}

// The first entry, which is empty, stands for choices that have no name.
void ExportDialog::ListPresets(const QString& chosen) {
    preset_->clear();
    preset_->addItem("");
    preset_->addItems(presets_.Names());
    preset_->setCurrentText(chosen);
    remove_->setEnabled(presets_.IsOwn(chosen));
}

void ExportDialog::ShowPreset(const QString& name) {
    const auto wish = presets_.Find(name);
    if (!wish) return;
    form_->ShowWish(*wish);
    ListPresets(name);
    TryAgain();
}

void ExportDialog::KeepPreset() {
    bool chosen = false;
    const QString name = QInputDialog::getText(this, UiText::tr("Keep Preset"), UiText::tr("Name:"),
                                               QLineEdit::Normal, "", &chosen);
    if (!chosen) return;
    if (presets_.Store(name.trimmed(), form_->Wish())) return ListPresets(name.trimmed());
    Warn(CoreText::tr("The preset can't be kept under this name."));
}

void ExportDialog::RemovePreset() {
    presets_.Remove(preset_->currentText());
    ListPresets("");
}

// What is under way is of no use anymore.
void ExportDialog::TryAgain() {
    if (trial_) trial_->Stop();
    const ExportWish wish = form_->Wish();
    std::optional<uint64> limit;
    if (wish.kilobytes) limit = static_cast<uint64>(*wish.kilobytes) * 1000;
    trial_ = std::make_shared<ExportTrial>(
        ExportTrial::Task{source_.animation, source_.pause_in_seconds, source_.budget,
                          source_.roster, wish.settings, limit});
    size_->setEnabled(false);
    if (!bytes_) size_->setText(UiText::tr("Working..."));
    export_->setEnabled(false);
    trials_.Do([this, wish, trial = trial_](const std::atomic<bool>&) -> std::function<void()> {
        auto outcome = std::make_shared<ExportTrial::Outcome>(trial->Run());
        return [this, wish, outcome] {
            exported_ = wish;
            Take(*outcome);
        };
    });
}

void ExportDialog::Take(const ExportTrial::Outcome& outcome) {
    trial_.reset();
    size_->setEnabled(true);
    if (outcome.result != ExportResult::kDone) {
        bytes_.reset();
        size_->setText(UiText::tr("No file"));
        given_up_->setText(SentenceOfFailure(outcome, exported_.settings.format));
        return;
    }
    bytes_ = std::make_shared<const std::vector<uint8>>(outcome.file.bytes);
    size_->setText(SizeTextOf(bytes_->size()));
    size_->setToolTip(UiText::tr("%1 bytes").arg(bytes_->size()));
    const std::string given_up = GivenUp(exported_.settings, outcome.file.settings);
    given_up_->setText(given_up.empty() ? ""
                                        : UiText::tr("With ") + QString::fromStdString(given_up));
    export_->setEnabled(true);
    view_->ShowResult(outcome.shown);
}

QString ExportDialog::ProposedPath() const {
    return source_.folder + '/' + source_.name + '.' + ExtensionOf(exported_.settings.format);
}

void ExportDialog::Choose() {
    const QString extension = ExtensionOf(exported_.settings.format);
    QString path = QFileDialog::getSaveFileName(
        this, UiText::tr("Export As"), ProposedPath(),
        QString("%1 (*.%2)").arg(NameOf(exported_.settings.format), extension));
    if (path.isEmpty()) return;
    if (!path.contains('.')) path += '.' + extension;
    Write(path, [this](const QString& problem) {
        if (!problem.isEmpty()) return Warn(problem.toStdString());
        accept();
    });
}

void ExportDialog::Write(const QString& path, std::function<void(const QString& problem)> done) {
    if (!bytes_) return;
    presets_.StoreLast(exported_);
    export_->setEnabled(false);
    writing_.Do([this, bytes = bytes_, path = QFile::encodeName(path).toStdString(),
                 done = std::move(done)](const std::atomic<bool>&) -> std::function<void()> {
        const QString problem = WriteBytes(path, *bytes);
        return [this, problem, done] {
            export_->setEnabled(true);
            done(problem);
        };
    });
}

}  // namespace kirto
