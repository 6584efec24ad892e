// A window made of an archive, with its resources and its application.
#pragma once

#include <QApplication>
#include <QFontMetricsF>
#include <QPointer>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "resources/qt/ie_window.h"
#include "resources/recording_application.h"
#include "resources/window_archive.h"
#include "support/window_resources.h"

namespace kirto::test {

inline float SystemFontHeight() {
    const QFontMetricsF metrics(QApplication::font());
    return static_cast<float>(metrics.ascent() + metrics.descent());
}

// An archive that is drawn for the desktop's font, so that it isn't scaled.
inline BMessage WindowArchive(BRect frame = {50, 60, 449, 359}) {
    BMessage archive;
    archive.AddString(kArchiveClass, "BWindow");
    archive.AddString(kArchiveTitle, "A window");
    archive.AddRect(kArchiveFrame, frame);
    archive.AddInt32(kArchiveType, kTitledWindow);
    archive.AddFloat(kArchiveFontHeight, SystemFontHeight());
    return archive;
}

// Takes down what it handles.
class TestWindow : public IEWindow {
  public:
    using IEWindow::IEWindow;

    void MessageReceived(BMessage* message) override {
        codes.push_back(CodeText(message->what));
        IEWindow::MessageReceived(message);
    }
    bool QuitRequested() override { return IEWindow::QuitRequested() && agrees; }

    std::vector<std::string> codes;
    bool agrees = true;
};

class IEWindowFixture : public ::testing::Test {
  protected:
    IEWindowFixture() { Use({{"Window", WindowArchive()}}); }
    ~IEWindowFixture() override { delete window; }

    void Use(const std::vector<WindowResources::Window>& windows) {
        resources = std::make_unique<WindowResources>(windows, &app);
    }
    TestWindow& Open(const char* name = "Window") {
        window = new TestWindow(name, resources->Handler());
        return *window;
    }
    TestWindow& Open(const BMessage& archive) {
        Use({{"Window", archive}});
        return Open();
    }
    // What was posted to the application, which is over then.
    std::vector<std::string> AppCodes() { return app.HandleAll(); }

    RecordingApplication<BApplication> app{"application/x-test"};
    std::unique_ptr<WindowResources> resources;
    QPointer<TestWindow> window;
};

}  // namespace kirto::test
