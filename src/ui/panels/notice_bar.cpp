#include "ui/panels/notice_bar.h"

#include <QAccessible>
#include <QPainter>

#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"

namespace {

// Between two colors, in per cent of the second.
QColor Mixed(const QColor& first, const QColor& second, int percent) {
    const auto mix = [percent](int from, int to) { return from + (to - from) * percent / 100; };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

}  // namespace

NoticeBar::NoticeBar(BMessenger window, QWidget* parent)
    : QWidget(parent), window_(std::move(window)), layout_(new QHBoxLayout(this)) {
    setObjectName("NoticeBar");
    setAccessibleName(UiText::tr("Notice"));
    text = kirto::MakeLabel("Notice", "", this);
    text->setWordWrap(true);
    layout_->setContentsMargins(8, 4, 8, 4);
    layout_->addWidget(text, 1);
    hide();
}

void NoticeBar::ShowNotice(const BMessage& message) {
    HideNotice();
    std::string words;
    message.FindString("text", &words);
    text->setText(UiText::tr(words.c_str()));
    setAccessibleDescription(text->text());
    std::string label;
    int32 command = 0;
    for (int32 i = 0; message.FindString("button", &label, i) == B_OK; ++i) {
        if (message.FindInt32("command", &command, i) != B_OK) break;
        AddButton(label, static_cast<uint32>(command));
    }
    show();
    QAccessibleEvent news(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

// A button that has the keyboard passes it on.
void NoticeBar::HideNotice() {
    hide();
    for (QPushButton* button : buttons)
        button->deleteLater();
    buttons.clear();
}

void NoticeBar::AddButton(const std::string& label, uint32 command) {
    const std::string name = "Notice" + label;
    buttons.push_back(
        kirto::MakeButton(name.c_str(), UiText::tr(label.c_str()), command, window_, this));
    layout_->addWidget(buttons.back());
}

// A tint of what is selected, under the colors of text, light or dark.
void NoticeBar::paintEvent(QPaintEvent*) {
    const QColor window = palette().color(QPalette::Window);
    const QColor highlight = palette().color(QPalette::Highlight);
    QPainter painter(this);
    painter.fillRect(rect(), Mixed(window, highlight, 15));
    painter.fillRect(0, 0, width(), 1, Mixed(window, highlight, 60));
}
