#include "ui/dialogs/colors_window.h"

#include <QFormLayout>
#include <algorithm>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"

namespace {

enum Scope { kFrame, kAll };
enum Click { kTells, kBackground, kTransparent };

void Post(const BMessenger& application, uint32 command, int32 value) {
    BMessage edit(command);
    edit.AddInt32("value", value);
    application.SendMessage(edit);
}

}  // namespace

ColorsWindow::ColorsWindow(const kirto::ShownDocument& shown, BMessenger application,
                           QWidget* parent)
    : QDialog(parent), shown_(shown), application_(std::move(application)) {
    setObjectName("ColorsWindow");
    setWindowTitle(UiText::tr("Colors"));
    scope = MakeMenu("ColorScope", UiText::tr("Colors of:"),
                     {UiText::tr("current frame"), UiText::tr("all frames")},
                     UiText::tr("All frames are those without a palette of their own"));
    order = MakeMenu("ColorOrder", UiText::tr("Sorted by:"),
                     {UiText::tr("index"), UiText::tr("hue"), UiText::tr("use")},
                     UiText::tr("Use is the number of pixels that have the color"));
    click = MakeMenu("ColorClick", UiText::tr("A click:"),
                     {UiText::tr("only tells"), UiText::tr("makes it the background"),
                      UiText::tr("makes it transparent")},
                     UiText::tr("What a click or the Enter key does with a color"));
    swatches = new kirto::SwatchGrid(this);
    told = kirto::MakeLabel("ToldColor", "", this);
    connect(scope, &QComboBox::currentIndexChanged, this, [this] { UpdateDisplay(); });
    connect(order, &QComboBox::currentIndexChanged, this, [this](int choice) {
        swatches->SetOrder(static_cast<kirto::SwatchGrid::Order>(choice));
    });
    swatches->WhenTold([this] { kirto::ShowText(*told, swatches->NameOf(swatches->Told())); });
    swatches->WhenChosen([this](int index) { Choose(index); });
    Arrange();
}

QComboBox* ColorsWindow::MakeMenu(const char* name, const QString& label, const QStringList& items,
                                  const QString& tip) {
    auto* menu = new QComboBox(this);
    menu->setObjectName(name);
    menu->setAccessibleName(label);
    menu->setToolTip(tip);
    menu->addItems(items);
    return menu;
}

void ColorsWindow::Arrange() {
    auto* menus = new QFormLayout;
    for (QComboBox* menu : {scope, order, click})
        menus->addRow(menu->accessibleName(), menu);
    // A long name must not widen the window.
    told->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(menus);
    layout->addWidget(swatches, 1);
    layout->addWidget(told);
    swatches->setFocus();
}

void ColorsWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    UpdateDisplay();
}

void ColorsWindow::UpdateDisplay() {
    if (!isVisible()) return;
    const std::shared_ptr<const kirto::Animation> animation = shown_.State().animation;
    if (animation == counted_ && scope->currentIndex() == counted_scope_) return;
    counted_ = animation;
    counted_scope_ = scope->currentIndex();
    if (animation->frames.Empty()) {
        work_.Stop();
        return swatches->SetSwatches({}, {});
    }
    const bool all = counted_scope_ == kAll;
    work_.Do([this, animation, all](const std::atomic<bool>& stop) -> std::function<void()> {
        const auto use = all ? kirto::PaletteUse::OfAll(*animation, stop)
                             : kirto::PaletteUse::OfFrame(*animation, animation->selected, stop);
        if (!use) return {};
        return [this, animation, counted = *use] { Show(counted, *animation); };
    });
}

void ColorsWindow::Show(const kirto::PaletteUse& use, const kirto::Animation& animation) {
    std::vector<kirto::SwatchGrid::Swatch> colors;
    const int count = 1 << std::clamp(use.palette->bits, 1, 8);
    for (int i = 0; i < count; ++i) {
        const rgb_color color = use.palette->ColorForIndex(i);
        colors.push_back(
            {QColor(color.red, color.green, color.blue), use.pixels[static_cast<size_t>(i)]});
    }
    const Palette& global = *animation.palette;
    kirto::SwatchGrid::Marks marks;
    marks.transparent = global.use_transparent ? global.transparent_index : -1;
    // It is one of the animation's own colors.
    const kirto::FramePointer frame = animation.CurrentFrame();
    const bool own = counted_scope_ == kFrame && frame && frame->local_palette;
    marks.background = own ? -1 : global.background_index;
    swatches->SetSwatches(std::move(colors), marks);
}

// As the palette's panel does it, by the same commands.
void ColorsWindow::Choose(int index) {
    if (click->currentIndex() == kBackground) {
        Post(application_, kirto::kSetBackgroundIndex, index);
    } else if (click->currentIndex() == kTransparent) {
        if (!shown_.Current().palette->use_transparent) {
            BMessage use(kirto::kUseTransparent);
            use.AddBool("value", true);
            application_.SendMessage(use);
        }
        Post(application_, kirto::kSetTransparentIndex, index);
    }
}
