#include "ui/thumbnails/frame_list_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"

namespace {

constexpr int kStripWidth = 222;

}  // namespace

FrameListView::FrameListView(const kirto::ShownDocument& shown, const BMessenger& window,
                             QWidget* parent)
    : QWidget(parent), shown_(shown) {
    setObjectName("FrameListView");
    list_ = new FrameList(window, this);
    list_->setMaximumWidth(kStripWidth);
    list_->setMinimumWidth(kStripWidth / 2);
    setFocusProxy(list_);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(MakeStrip(window));
    layout->addLayout(MakePreview(), 1);
    UpdateDisplay();
}

QLayout* FrameListView::MakeStrip(const BMessenger& window) {
    auto* strip = new QVBoxLayout;
    strip->addWidget(list_, 1);
    strip->addLayout(MakeButtons(window));
    return strip;
}

QLayout* FrameListView::MakeButtons(const BMessenger& window) {
    const auto make = [&](const char* name, const QString& label, uint32 command,
                          const QString& tool_tip) {
        QPushButton* button = kirto::MakeButton(name, label, command, window, this);
        button->setToolTip(tool_tip);
        return button;
    };
    auto* buttons = new QGridLayout;
    buttons->addWidget(
        make("Insert", UiText::tr("Insert"), kirto::kMenuInsert, UiText::tr("Insert image files")),
        0, 0);
    buttons->addWidget(make("Remove", UiText::tr("Remove"), kirto::kRemoveFrame,
                            UiText::tr("Remove the current frame")),
                       0, 1);
    buttons->addWidget(make("MoveUp", UiText::tr("Move Up"), kirto::kMoveFrameUp,
                            UiText::tr("Move the current frame toward the start")),
                       1, 0);
    buttons->addWidget(make("MoveDown", UiText::tr("Move Down"), kirto::kMoveFrameDown,
                            UiText::tr("Move the current frame toward the end")),
                       1, 1);
    return buttons;
}

QLayout* FrameListView::MakePreview() {
    title_ = kirto::MakeLabel("Title", UiText::tr("Preview: 100%"), this);
    // It takes two lines before the list is cut.
    title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    title_->setWordWrap(true);
    preview_ = new kirto::FramePreview(
        [this](int32 percent) {
            kirto::ShowText(*title_, UiText::tr("Preview: %1%").arg(percent));
        },
        this);
    preview_->setObjectName("Preview");
    preview_->setAccessibleName(UiText::tr("Preview"));
    auto* layout = new QVBoxLayout;
    layout->addWidget(title_);
    layout->addWidget(preview_, 1);
    return layout;
}

void FrameListView::UpdateDisplay() {
    list_->ShowFrames(shown_.Current());
    preview_->ShowFrame(shown_.CurrentFrame(), shown_.Settings().thumbnail_drawtransparent);
}

void FrameListView::ResetDisplay() {
    list_->ShowFrames({});
    preview_->ShowFrame(nullptr, shown_.Settings().thumbnail_drawtransparent);
}
