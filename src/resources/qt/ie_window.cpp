#include "resources/qt/ie_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "kit/qt/ui_text.h"
#include "resources/ie_variable_handler.h"
#include "resources/qt/view_factory.h"
#include "resources/rescale_archive.h"
#include "resources/window_archive.h"

namespace {

int32 NumberIn(const BMessage& archive, const char* field) {
    int32 number = 0;
    archive.FindInt32(field, &number);
    return number;
}

BRect FrameIn(const BMessage& archive) {
    BRect frame(0, 0, 0, 0);
    archive.FindRect(kirto::kArchiveFrame, &frame);
    return frame;
}

// An archive may hold anything; no window lies farther away than any screen reaches.
int PixelAt(float coordinate) {
    constexpr float kFarthest = 30000;
    if (!std::isfinite(coordinate)) return 0;
    return static_cast<int>(std::clamp(coordinate, -kFarthest, kFarthest));
}

// The window's size in pixels for distances between its edges.
QSize SizeOf(float width, float height) {
    return {PixelAt(width) + 1, PixelAt(height) + 1};
}

float DistanceIn(const BMessage& archive, const char* field) {
    float distance = 0;
    archive.FindFloat(field, &distance);
    return distance;
}

// Height of the desktop's plain font, in pixels.
float FontHeight() {
    const QFontMetricsF metrics(QApplication::font());
    return static_cast<float>(metrics.ascent() + metrics.descent());
}

BMessage PlaceholderArchive(const char* name) {
    BMessage archive;
    archive.AddString(kirto::kArchiveClass, "BWindow");
    archive.AddString(kirto::kArchiveTitle,
                      kirto::Format("Window \"%s\" not found in resources!", name));
    archive.AddRect(kirto::kArchiveFrame, BRect(32, 32, 400, 64));
    archive.AddInt32(kirto::kArchiveType, kirto::kTitledWindow);
    archive.AddInt32(kirto::kArchiveLook, kirto::kTitledLook);
    archive.AddInt32(kirto::kArchiveFeel, kirto::kNormalFeel);
    archive.AddInt32(kirto::kArchiveFlags, 0);
    return archive;
}

// The views that lie in the parent itself.
QWidgetList ChildrenOf(const QWidget& parent) {
    QWidgetList children = parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    children.removeIf([](const QWidget* child) { return child->isWindow(); });
    return children;
}

IEVariableHandler* HandlerNamed(const QWidget& window, const char* name) {
    return dynamic_cast<IEVariableHandler*>(window.findChild<QWidget*>(QString::fromUtf8(name)));
}

}  // namespace

BMessage IEWindow::FindWindowResource(const char* name, const IEResourceHandler& resources) {
    BMessage archive;
    const auto bytes = resources.FindResource(name, kirto::kWindowArchiveType);
    if (!bytes || archive.Unflatten(bytes->data(), bytes->size()) != B_OK) {
        return PlaceholderArchive(name);
    }
    return kirto::RescaleArchive(std::move(archive), 0, FontHeight());
}

IEWindow::IEWindow(const char* name, IEResourceHandler& resources, QWidget* parent)
    : IEWindow(name, FindWindowResource(name, resources), resources,
               kirto::GuiPort::Create([this](BMessage* message) {
                   if (running_) MessageReceived(message);
               }),
               parent) {}

IEWindow::IEWindow(const char* name, const BMessage& archive, IEResourceHandler& resources,
                   std::shared_ptr<kirto::GuiPort> port, QWidget* parent)
    : QDialog(parent),
      BWindow(name, port, NumberIn(archive, kirto::kArchiveType) == kirto::kModalWindow),
      resources_(resources),
      port_(std::move(port)) {
    setObjectName(QString::fromUtf8(name));
    TakeShape(archive);
    if (resources.Error() != 0) return;
    running_ = true;
    TakeLimits(archive);
    TakePlace(archive);
    resources.AddToWindowList(this);
}

IEWindow::~IEWindow() {
    port_->Close();
}

void IEWindow::TakeShape(const BMessage& archive) {
    std::string title;
    archive.FindString(kirto::kArchiveTitle, &title);
    setWindowTitle(UiText::tr(title.c_str()));
    setModal(IsModal());
    kirto::ViewFactory(Messenger()).MakeChildren(archive, *this);
    layout()->setContentsMargins(0, 0, 0, 0);
    layout()->setSpacing(0);
    const BRect frame = FrameIn(archive);
    resize(SizeOf(frame.Width(), frame.Height()).boundedTo(screen()->size()));
    move(PixelAt(frame.left), PixelAt(frame.top));
}

void IEWindow::TakeLimits(const BMessage& archive) {
    const bool limited = archive.HasField(kirto::kArchiveMinWidth);
    QSize least(0, 0);
    QSize most = maximumSize();
    if (limited) {
        least = SizeOf(DistanceIn(archive, kirto::kArchiveMinWidth),
                       DistanceIn(archive, kirto::kArchiveMinHeight));
        most = SizeOf(DistanceIn(archive, kirto::kArchiveMaxWidth),
                      DistanceIn(archive, kirto::kArchiveMaxHeight));
    }
    const bool fixed =
        least == most || (NumberIn(archive, kirto::kArchiveFlags) & kirto::kNotResizable) != 0;
    if (fixed) least = least.expandedTo(size());
    // Labels may need more room than the limits allow, so they are the layout's to keep.
    auto* grid = static_cast<QGridLayout*>(layout());
    grid->addItem(new QSpacerItem(least.width(), least.height()), 0, 0, -1, -1);
    grid->setSizeConstraint(fixed ? QLayout::SetFixedSize : QLayout::SetMinimumSize);
    grid->activate();
    if (!fixed && limited) setMaximumSize(most.expandedTo(sizeHint()));
}

void IEWindow::TakePlace(const BMessage& archive) {
    if ((NumberIn(archive, kirto::kArchiveFrameworkFlags) & kirto::kCentered) == 0) return;
    const QRect frame = screen()->geometry();
    const QSize spare = frame.size() - size();
    move(frame.left() + static_cast<int>(spare.width() * 0.5),
         frame.top() + static_cast<int>(spare.height() * 0.5));
}

void IEWindow::Quit() {
    if (!port_->IsOpen()) return;
    for (const BMessenger& dependant : dependants_) {
        if (dependant.IsValid()) dependant.SendMessage(B_QUIT_REQUESTED);
    }
    dependants_.clear();
    resources_.RemoveFromWindowList(this);
    port_->Close();
    hide();
    deleteLater();
}

void IEWindow::Show() {
    UpdateAllViews(nullptr);
    show();
    raise();
    activateWindow();
}

bool IEWindow::QuitRequested() {
    UpdateAllVariables(nullptr);
    return true;
}

void IEWindow::UpdateAllViews(QWidget* parent) {
    for (QWidget* child : ChildrenOf(parent ? *parent : *this)) {
        const bool is_parent = !ChildrenOf(*child).isEmpty();
        if (auto* handler = dynamic_cast<IEVariableHandler*>(child)) handler->UpdateView();
        if (is_parent) UpdateAllViews(child);
    }
}

void IEWindow::UpdateAllVariables(QWidget* parent) {
    for (QWidget* child : ChildrenOf(parent ? *parent : *this)) {
        const bool is_parent = !ChildrenOf(*child).isEmpty();
        if (auto* handler = dynamic_cast<IEVariableHandler*>(child)) handler->UpdateVariable();
        if (is_parent) UpdateAllVariables(child);
    }
}

void IEWindow::UpdateView(const char* name) {
    if (IEVariableHandler* handler = HandlerNamed(*this, name)) handler->UpdateView();
}

void IEWindow::UpdateVariable(const char* name) {
    if (IEVariableHandler* handler = HandlerNamed(*this, name)) handler->UpdateVariable();
}

void IEWindow::SetViewVariable(const char* name, void* variable, const char* text) {
    if (IEVariableHandler* handler = HandlerNamed(*this, name)) {
        handler->SetVariable(variable, text);
    }
}

void IEWindow::AddDependantWindow(const BWindow& other) {
    dependants_.push_back(other.Messenger());
}

void IEWindow::MessageReceived(BMessage* message) {
    if (message->what == B_QUIT_REQUESTED) {
        Close();
    } else {
        BWindow::MessageReceived(message);
    }
}

void IEWindow::Close() {
    if (QuitRequested()) Quit();
}

void IEWindow::reject() {
    Close();
}

void IEWindow::closeEvent(QCloseEvent* event) {
    Close();
    event->setAccepted(!port_->IsOpen());
}
