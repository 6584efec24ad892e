#include "support/fake_desktop.h"

#include <utility>

#include "base/text.h"
#include "kit/entry_ref.h"

namespace kirto::test {

namespace {

class FakePanel : public FilePanel {
  public:
    FakePanel(FakeDesktop& desktop, FilePanelKind kind) : desktop_(desktop), kind_(kind) {
        desktop_.AddLine(Format("panel %s made", KindName(kind_)));
    }
    ~FakePanel() override { desktop_.AddLine(Format("panel %s deleted", KindName(kind_))); }

    uint32 OutputFormat() const override { return desktop_.fields.output_format; }
    void UseOutputFormat(uint32 format) override { desktop_.fields.output_format = format; }
    std::string RowsText() const override { return desktop_.fields.rows; }
    std::string ColumnsText() const override { return desktop_.fields.columns; }
    bool ColumnByColumn() const override { return desktop_.fields.column_by_column; }

  private:
    FakeDesktop& desktop_;
    const FilePanelKind kind_;
};

}  // namespace

FakeDesktop::FakeDesktop() : previous_(InstallAlertPresenter(this)) {}

FakeDesktop::~FakeDesktop() {
    InstallAlertPresenter(previous_);
}

void FakeDesktop::Answer(std::vector<int32> answers) {
    const std::lock_guard lock(mutex_);
    answers_ = std::move(answers);
}

std::vector<std::string> FakeDesktop::TakeLines() {
    const std::lock_guard lock(mutex_);
    return std::exchange(lines_, {});
}

void FakeDesktop::AddLine(const std::string& line) {
    const std::lock_guard lock(mutex_);
    lines_.push_back(line);
}

int32 FakeDesktop::Present(const BAlert& alert) {
    const std::lock_guard lock(mutex_);
    lines_.push_back(AlertLine(alert));
    if (answers_.empty()) return static_cast<int32>(alert.Buttons().size()) - 1;
    const int32 answer = answers_.front();
    answers_.erase(answers_.begin());
    return answer;
}

void FakeDesktop::Tell(const std::string& text) {
    AddLine("told " + text);
}

BMessenger FakeDesktop::OpenMainWindow(Kirto&, const BRect& frame, const std::string& title) {
    AddLine(Format("window %g %g %g %g %s", static_cast<double>(frame.left),
                   static_cast<double>(frame.top), static_cast<double>(frame.right),
                   static_cast<double>(frame.bottom), title.c_str()));
    return BMessenger(window);
}

void FakeDesktop::RememberFile(const std::string& path) {
    const std::lock_guard lock(mutex_);
    remembered_.push_back(path);
}

std::vector<std::string> FakeDesktop::TakeRemembered() {
    const std::lock_guard lock(mutex_);
    return std::exchange(remembered_, {});
}

void FakeDesktop::AbandonPendingCommand() {
    AddLine("pending command abandoned");
}

std::unique_ptr<FilePanel> FakeDesktop::MakeFilePanel(FilePanelKind kind, BMessenger target) {
    panel_target = std::move(target);
    return std::make_unique<FakePanel>(*this, kind);
}

std::string FakeDesktop::MimeTypeOf(const std::string& path) {
    const auto known = mime_types.find(entry_ref(path).Leaf());
    return known == mime_types.end() ? std::string() : known->second;
}

void FakeDesktop::OpenInBrowser(const std::string& path) {
    AddLine("browser " + path);
}

std::string WarningLine(const std::string& text) {
    return "WARNING [] " + text + " | OK";
}

const char* KindName(FilePanelKind kind) {
    switch (kind) {
        case FilePanelKind::kOpen:
            return "open";
        case FilePanelKind::kInsert:
            return "insert";
        case FilePanelKind::kInsertAnimation:
            return "insert animation";
        case FilePanelKind::kInsertTiled:
            return "insert tiled";
        case FilePanelKind::kSave:
            break;
    }
    return "save";
}

}  // namespace kirto::test
