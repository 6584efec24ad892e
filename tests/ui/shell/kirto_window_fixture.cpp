#include "ui/shell/kirto_window_fixture.h"

#include "app/document_edits.h"
#include "support/fake_desktop.h"
#include "support/source_folder.h"

namespace kirto::test {

class RecordedPanels::Panel : public FilePanel {
  public:
    Panel(Lines& lines, std::string name) : lines_(lines), name_(std::move(name)) {}

    void SetTitle(const std::string& title) override { Record("title=" + title); }
    void SetDirectory(const std::string& path) override { Record("directory=" + path); }
    void SetSaveText(const std::string& text) override { Record("text=" + text); }
    void ProposeName(const std::string& name) override { Record("proposed=" + name); }
    void Show() override { Record("shown"); }

  private:
    void Record(const std::string& what) { lines_.push_back(name_ + " " + what); }

    Lines& lines_;
    const std::string name_;
};

FilePanel* RecordedPanels::GetPanel(FilePanelKind kind) {
    panels_.push_back(std::make_unique<Panel>(lines_, KindName(kind)));
    return panels_.back().get();
}

KirtoWindowFixture::KirtoWindowFixture()
    : resources({{"PreferencesWindow",
                  ArchiveOfLayout(SourceFolder() / "resources/preferences_window.toml")}}) {
    prefs.misc_savewindowdimensions = false;
}

void KirtoWindowFixture::Open(BRect frame) {
    document.PublishSettings();
    const Editor editor{
        document, commands, panels, roster, &resources.Handler(), [this] { return found; }};
    window = std::make_unique<KirtoWindow>(frame, "Kirto - untitled", editor);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    HandleEvents();
}

FrameHandle KirtoWindowFixture::AddFrame(int32 width, int32 height) {
    const std::vector<uint32> pixels(static_cast<size_t>(width) * static_cast<size_t>(height),
                                     0xFF336699);
    return AppendFrame(document, PictureOf(width, height, pixels),
                       "frame" + std::to_string(document.FrameCount()));
}

void KirtoWindowFixture::Do(const BMessage& command) {
    BMessage message = command;
    window->MessageReceived(&message);
    HandleEvents();
}

BMessage KirtoWindowFixture::LastPosted() {
    const std::vector<BMessage> messages = application->Messages();
    if (messages.empty()) ADD_FAILURE() << "nothing was posted";
    return messages.empty() ? BMessage() : messages.back();
}

void KirtoWindowFixture::CarryOutEdits() {
    for (const BMessage& message : application->Messages()) {
        ApplyEdit(document, message);
        if (CommandPort::IsCounted(message)) CommandPort::Uncount(document, message);
    }
    Posted();
    Do(kEditDone);
}

void KirtoWindowFixture::HandleEvents() {
    for (int turn = 0; turn < 5; ++turn) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void KirtoWindowFixture::Type(TextControl& field, const QString& text) {
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

void KirtoWindowFixture::Enter(TextControl& field, const QString& text) {
    Type(field, text);
    QTest::keyClick(&field, Qt::Key_Return);
    HandleEvents();
}

}  // namespace kirto::test
