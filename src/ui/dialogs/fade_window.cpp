#include "ui/dialogs/fade_window.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>

#include "base/core_text.h"
#include "base/number.h"
#include "document/command_codes.h"
#include "kit/alert.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"
#include "ui/controls/rt_color_control.h"
#include "ui/controls/toolbar.h"
#include "ui/dialogs/fade_strip.h"

namespace {

constexpr int kMinWidth = 350;   // pixels
constexpr int kMinHeight = 135;  // pixels
constexpr int kCountDigits = 8;  // that the field shows
constexpr int32 kMinCount = 1;
constexpr int32 kMaxCount = 100;

bool IsEnter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

FadeWindow::FadeWindow(BMessenger application, QWidget* parent)
    : FadeWindow(std::move(application), parent,
                 kirto::GuiPort::Create([this](BMessage* message) { MessageReceived(message); })) {}

FadeWindow::FadeWindow(BMessenger application, QWidget* parent,
                       std::shared_ptr<kirto::GuiPort> port)
    : QDialog(parent),
      BWindow("Fade Effects", port),
      application_(std::move(application)),
      port_(std::move(port)) {
    setObjectName("FadeWindow");
    setWindowTitle(UiText::tr("Fade Effects"));
    setAttribute(Qt::WA_DeleteOnClose);
    MakeControls();
    setMinimumSize(sizeHint().expandedTo({kMinWidth, kMinHeight}));
    resize(minimumSize());
    frame_count_->setFocus();
    frame_count_->selectAll();
}

FadeWindow::~FadeWindow() {
    port_->Close();
}

void FadeWindow::MakeControls() {
    auto* panel = new Toolbar("Toolbar", this);
    mode_ = kirto::MakePopUpMenu("ModeMenuField",
                                 {{UiText::tr("to an rgb color"), kirto::kFadeToColor, 0},
                                  {UiText::tr("from an rgb color"), kirto::kFadeFromColor, 1},
                                  {UiText::tr("to next frame"), kirto::kFadeToNext, 2},
                                  {UiText::tr("from previous frame"), kirto::kFadeFromPrevious, 3}},
                                 Messenger(), panel);
    mode_->view()->setObjectName("ModeMenu");
    mode_->setToolTip(UiText::tr("What to blend the current frame with"));
    frame_count_ = kirto::MakeField("FrameCount", kirto::kFadeCount, Messenger(), panel);
    frame_count_->setText("1");
    frame_count_->setFixedWidth(kCountDigits * frame_count_->fontMetrics().horizontalAdvance("0"));
    frame_count_->setToolTip(UiText::tr("The number of new frames, from 1 to 100"));
    frame_count_->installEventFilter(this);
    color_ = new RTColorControl("ColorControl", panel);
    color_->setToolTip(UiText::tr("The color to fade to or from"));
    preview_ = new kirto::FadeStrip(
        "Preview",
        [this]() -> kirto::FadeChoice {
            return {mode_->currentData().toUInt(), Count(), static_cast<uint32>(color_->Value())};
        },
        panel);
    connect(mode_, &QComboBox::currentIndexChanged, preview_, [this] { preview_->update(); });
    connect(frame_count_, &QLineEdit::textChanged, preview_, [this] { preview_->update(); });
    Arrange(panel);
}

void FadeWindow::Arrange(QWidget* panel) {
    const auto label_for = [panel](const char* name, const QString& text, QWidget* control) {
        QLabel* label = kirto::MakeLabel(name, text, panel);
        label->setBuddy(control);
        control->setAccessibleName(label->text());
        return label;
    };
    auto* layout = new QGridLayout(panel);
    QLabel* scope = kirto::MakeLabel(
        "Scope", UiText::tr("Blends the current frame alone, whatever else is selected."), panel);
    scope->setWordWrap(true);
    layout->addWidget(scope, 0, 0, 1, 3);
    layout->addWidget(label_for("ModeMenuLabel", UiText::tr("Fade mode:"), mode_), 1, 0);
    layout->addWidget(mode_, 1, 1, 1, 2, Qt::AlignLeft);
    layout->addWidget(label_for("FrameCountLabel", UiText::tr("Frame count:"), frame_count_), 2, 0);
    layout->addWidget(frame_count_, 2, 1, 1, 2, Qt::AlignLeft);
    layout->addWidget(color_, 3, 0, 1, 3);
    layout->addWidget(label_for("PreviewString", UiText::tr("Preview:"), preview_), 4, 0,
                      Qt::AlignTop);
    layout->addWidget(preview_, 4, 1, 1, 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(4, 1);

    auto* buttons = new QDialogButtonBox(panel);
    QPushButton* ok = kirto::MakeButton("OK", UiText::tr("OK"), kirto::kFadeOk, Messenger(), panel);
    QPushButton* cancel =
        kirto::MakeButton("Cancel", UiText::tr("Cancel"), kirto::kFadeCancel, Messenger(), panel);
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    ok->setDefault(true);
    // A click takes the count as it is typed; only leaving the field confirms it.
    ok->setFocusPolicy(Qt::TabFocus);
    cancel->setFocusPolicy(Qt::TabFocus);
    layout->addWidget(buttons, 5, 0, 1, 3);
}

void FadeWindow::ShowFadeOf(std::shared_ptr<const kirto::Animation> animation, bool in_seconds) {
    preview_->SetAnimation(std::move(animation), in_seconds);
}

void FadeWindow::MessageReceived(BMessage* message) {
    switch (message->what) {
        case kirto::kFadeToColor:
        case kirto::kFadeFromColor:
            color_->setEnabled(true);
            break;
        case kirto::kFadeToNext:
        case kirto::kFadeFromPrevious:
            color_->setEnabled(false);
            break;
        case kirto::kFadeCount:
            CheckCount();
            break;
        case kirto::kFadeOk:
            Fade();
            close();
            break;
        case kirto::kFadeCancel:
            close();
            break;
        default:
            BWindow::MessageReceived(message);
            break;
    }
}

void FadeWindow::Fade() {
    BMessage fade(mode_->currentData().toUInt());
    fade.AddInt32("count", Count());
    fade.AddInt32("color", color_->Value());
    application_.SendMessage(fade);
}

void FadeWindow::done(int result) {
    // A second click on "OK" is no second fade, and a count that was left unconfirmed stays so.
    port_->Close();
    QDialog::done(result);
}

bool FadeWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != frame_count_ || !IsEnter(*event)) return QDialog::eventFilter(watched, event);
    frame_count_->setModified(false);
    if (CheckCount()) port_->Post(BMessage(kirto::kFadeOk), Token());
    return true;
}

int32 FadeWindow::Count() const {
    return kirto::LeadingInteger(frame_count_->text().toStdString());
}

bool FadeWindow::CheckCount() {
    const int32 count = Count();
    if (count >= kMinCount && count <= kMaxCount) return true;
    frame_count_->SetText("1");
    kirto::Warn(CoreText::tr("Frame count must be between 1 and 100."));
    return false;
}
