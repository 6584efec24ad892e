#include "ui/file_panels/file_panel_fixture.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "ui/file_panels/qt_file_panel.h"
#include "ui/widget_tools.h"

namespace kirto::test {

std::vector<translator_id> WriterRoster::Translators() const {
    if (no_translators) return {};
    return {kRaw, kReadOnly, kPng, kTwoFormats, kGone};
}

bool WriterRoster::GetTranslatorInfo(translator_id translator, std::string* name) const {
    if (translator == kGone) return false;
    *name = "Writer";
    return true;
}

std::vector<translation_format> WriterRoster::OutputFormats(translator_id translator) const {
    switch (translator) {
        case kPng:
            return {{B_TRANSLATOR_BITMAP, "image/x-bitmap", "Bitmap", {}},
                    {FourCharCode("PNG "), "image/png", "PNG image", {"png"}}};
        case kTwoFormats:
            return {{FourCharCode("ONE "), "image/x-one", "One", {"one", "1"}},
                    {FourCharCode("TWO "), "image/x-two", "Two", {}}};
        case kGone:
            return {{FourCharCode("GONE"), "image/x-gone", "Gone", {"gone"}}};
        default:
            return FakeRoster::OutputFormats(translator);
    }
}

BMessage WriterRoster::DefaultSettings(translator_id translator) const {
    BMessage settings;
    if (translator == kPng) settings.AddInt32("compression", 6);
    return settings;
}

void FilePanelTest::Make(FilePanelKind kind) {
    panel = MakeQtFilePanel(kind, BMessenger(application), roster, parent.get(),
                            [this] { ++preferences_shown; });
}

void FilePanelTest::Show(FilePanelKind kind) {
    Make(kind);
    panel->Show();
    Dialog()->setDirectory(QString::fromStdString(folder.Path()));
}

void FilePanelTest::AddFile(const std::string& name, const std::string& content) const {
    WriteBytes(folder.File(name), {content.begin(), content.end()});
}

FileDialog* FilePanelTest::Dialog() const {
    return static_cast<FileDialogPanel*>(panel.get())->Dialog();
}

QLineEdit* FilePanelTest::NameField() const {
    return Named<QLineEdit>(*Dialog(), "fileNameEdit");
}

QPushButton* FilePanelTest::AcceptButton() const {
    const auto* buttons = Named<QDialogButtonBox>(*Dialog(), "buttonBox");
    for (const auto button : {QDialogButtonBox::Open, QDialogButtonBox::Save}) {
        if (buttons->button(button)) return buttons->button(button);
    }
    return nullptr;
}

std::string FilePanelTest::Offered(int count) const {
    const auto* list = Named<QListView>(*Dialog(), "listView");
    const auto rows = [&] { return list->model()->rowCount(list->rootIndex()); };
    EXPECT_TRUE(WaitFor([&] { return rows() == count; })) << rows() << " entries";
    QStringList names;
    for (int row = 0; row < rows(); ++row)
        names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
    names.sort();
    return names.join(' ').toStdString();
}

void FilePanelTest::Choose(const QString& name) const {
    // Without the focus the field would follow what is selected instead.
    EXPECT_TRUE(QTest::qWaitForWindowActive(Dialog()));
    NameField()->setFocus();
    NameField()->setText(name);
    EXPECT_TRUE(WaitFor([this] { return AcceptButton()->isEnabled(); }));
    AcceptButton()->click();
}

BMessage FilePanelTest::Sent(size_t number) const {
    const std::vector<BMessage> messages = application->Messages();
    EXPECT_LT(number, messages.size());
    return number < messages.size() ? messages[number] : BMessage();
}

std::vector<std::string> FilePanelTest::Refs(const BMessage& message) {
    std::vector<std::string> paths;
    entry_ref ref;
    for (int32 i = 0; message.FindRef("refs", &ref, i) == B_OK; ++i)
        paths.push_back(ref.path);
    return paths;
}

bool FilePanelTest::IsClosing(const BMessage& message) const {
    void* source = nullptr;
    return message.what == B_CANCEL && message.FindPointer("source", &source) == B_OK &&
           source == panel.get();
}

}  // namespace kirto::test
