#include "e2e/direct_save_target.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace kirto::test {
namespace {

constexpr int kWidth = 200;
constexpr int kHeight = 150;
constexpr Atom kDragVersion = 5;
constexpr long kMoreThanThreeTypes = 1;
constexpr long kAcceptAndKeepTelling = 3;

struct FreeByX {
    void operator()(unsigned char* data) const { XFree(data); }
};

void Print(const std::string& line) {
    std::puts(line.c_str());
    std::fflush(stdout);
}

class DirectSaveTarget {
  public:
    DirectSaveTarget(Display* display, std::string folder, int x, int y)
        : display_(display), folder_(std::move(folder)), window_(MakeWindow(x, y)) {}

    void Run() {
        for (;;) {
            XEvent event;
            XNextEvent(display_, &event);
            if (event.type == MapNotify) Print("ready");
            if (event.type == ClientMessage) Handle(event.xclient);
            if (event.type == SelectionNotify) Finish(event.xselection);
        }
    }

  private:
    Atom Named(const char* name) const { return XInternAtom(display_, name, False); }

    Window MakeWindow(int x, int y) {
        const Window window =
            XCreateSimpleWindow(display_, DefaultRootWindow(display_), x, y, kWidth, kHeight, 0, 0,
                                WhitePixel(display_, DefaultScreen(display_)));
        XStoreName(display_, window, "Direct save");
        XSizeHints hints{};
        hints.flags = USPosition | USSize;
        XSetWMNormalHints(display_, window, &hints);
        XChangeProperty(display_, window, Named("XdndAware"), XA_ATOM, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(&kDragVersion), 1);
        XSelectInput(display_, window, StructureNotifyMask);
        XMapWindow(display_, window);
        return window;
    }

    void Handle(const XClientMessageEvent& message) {
        if (message.message_type == Named("XdndEnter")) Enter(message);
        if (message.message_type == Named("XdndPosition")) AnswerPosition();
        if (message.message_type == Named("XdndLeave")) source_ = None;
        if (message.message_type == Named("XdndDrop"))
            AskToSave(static_cast<Time>(message.data.l[2]));
    }

    void Enter(const XClientMessageEvent& message) {
        source_ = static_cast<Window>(message.data.l[0]);
        std::vector<Atom> types;
        if (message.data.l[1] & kMoreThanThreeTypes) {
            types = AtomsOf(source_, Named("XdndTypeList"));
        } else {
            for (int i = 2; i < 5; ++i)
                types.push_back(static_cast<Atom>(message.data.l[i]));
        }
        accepts_ = std::count(types.begin(), types.end(), Named("XdndDirectSave0")) > 0;
        Print("entered" + NamesOf(types));
    }

    void AnswerPosition() {
        Answer("XdndStatus", accepts_ ? kAcceptAndKeepTelling : 0);
        Print(accepts_ ? "over" : "refused");
    }

    // Tells the source where to save, in the property that holds its suggestion so far.
    void AskToSave(Time time) {
        const Atom direct_save = Named("XdndDirectSave0");
        name_ = TextOf(source_, direct_save);
        if (!accepts_ || name_.empty() || name_.find('/') != std::string::npos) {
            Print("failed name '" + name_ + "'");
            Answer("XdndFinished", 0);
            return;
        }
        const std::string url = "file://" + folder_ + "/" + name_;
        XChangeProperty(display_, source_, direct_save, Named("text/plain"), 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(url.data()),
                        static_cast<int>(url.size()));
        XConvertSelection(display_, Named("XdndSelection"), direct_save, direct_save, window_,
                          time);
        XFlush(display_);
    }

    // The source answers S for saved, F for "save it yourself", E for an error.
    void Finish(const XSelectionEvent& event) {
        const std::string answer = event.property == None ? "" : TextOf(window_, event.property);
        const bool saved = answer == "S";
        Answer("XdndFinished", saved ? 1 : 0);
        Print(saved ? "saved " + name_ : "failed " + answer);
        source_ = None;
    }

    void Answer(const char* type, long flags) {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = source_;
        event.xclient.message_type = Named(type);
        event.xclient.format = 32;
        event.xclient.data.l[0] = static_cast<long>(window_);
        event.xclient.data.l[1] = flags;
        const long action = flags == 0 ? 0 : static_cast<long>(Named("XdndActionCopy"));
        event.xclient.data.l[std::string(type) == "XdndStatus" ? 4 : 2] = action;
        XSendEvent(display_, source_, False, NoEventMask, &event);
        XFlush(display_);
    }

    struct Property {
        std::unique_ptr<unsigned char, FreeByX> data;
        int format = 0;
        unsigned long count = 0;
    };

    Property PropertyOf(Window window, Atom name) const {
        Property property;
        Atom type = None;
        unsigned long left = 0;
        unsigned char* data = nullptr;
        XGetWindowProperty(display_, window, name, 0, 1 << 16, False, AnyPropertyType, &type,
                           &property.format, &property.count, &left, &data);
        property.data.reset(data);
        return property;
    }

    std::string TextOf(Window window, Atom name) const {
        const Property property = PropertyOf(window, name);
        if (!property.data || property.format != 8) return "";
        return {property.data.get(), property.data.get() + property.count};
    }

    std::vector<Atom> AtomsOf(Window window, Atom name) const {
        const Property property = PropertyOf(window, name);
        if (!property.data || property.format != 32) return {};
        const auto* atoms = reinterpret_cast<const Atom*>(property.data.get());
        return {atoms, atoms + property.count};
    }

    std::string NamesOf(const std::vector<Atom>& atoms) const {
        std::string names;
        for (const Atom atom : atoms) {
            if (atom == None) continue;
            char* name = XGetAtomName(display_, atom);
            names += std::string(" ") + name;
            XFree(name);
        }
        return names;
    }

    Display* display_;
    std::string folder_;
    Window window_;
    Window source_ = None;
    bool accepts_ = false;
    std::string name_;
};

}  // namespace

int RunDirectSaveTarget(const char* folder, int x, int y) {
    Display* display = XOpenDisplay(nullptr);
    if (!display) return 1;
    DirectSaveTarget(display, folder, x, y).Run();
    return 0;
}

}  // namespace kirto::test
