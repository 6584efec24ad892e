#include "app/kirto_fixture.h"

#include <algorithm>
#include <filesystem>

#include "support/fli_builder.h"

namespace kirto::test {

GifBuilder GifOf(const std::vector<int32>& delays) {
    GifBuilder gif(2, 1, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
    uint8 index = 0;
    for (const int32 delay : delays) {
        GifBuilder::Image image;
        image.width = 2;
        image.indices = {index, index};
        image.min_code_size = 2;
        gif.Control(0, delay).Add(image);
        index = static_cast<uint8>((index + 1) % 4);
    }
    return gif.Trailer();
}

std::vector<uint8> SmallFlc() {
    return FliBuilder(2, 1).Record().Color256({{0, {0x010203}}}).Copy({0, 0});
}

KirtoFixture::KirtoFixture() {
    prefs_.misc_tempfilelocation = folder_.Path();
}

KirtoFixture::~KirtoFixture() {
    app_.reset();
}

void KirtoFixture::Start() {
    Make();
    Run();
}

void KirtoFixture::Make() {
    app_ = std::make_unique<Kirto>(prefs_, desktop_, roster_);
    app_->AddHandler(&barrier_);
    desktop_.window->TakeTranscript();
    TakeLines();
}

void KirtoFixture::WaitUntilIdle() {
    barrier_.Wait(*app_);
    barrier_.Wait(*app_);
}

std::string KirtoFixture::Do(const BMessage& command) {
    app_->PostMessage(command);
    WaitUntilIdle();
    return desktop_.window->TakeTranscript();
}

BMessage KirtoFixture::Files(uint32 what, const Lines& names) const {
    BMessage message(what);
    for (const std::string& name : names)
        message.AddRef("refs", entry_ref(File(name)));
    return message;
}

BMessage KirtoFixture::CancelOf(const FilePanel* panel) {
    BMessage message(B_CANCEL);
    message.AddPointer("source", panel);
    return message;
}

BMessage KirtoFixture::SaveTo(const std::string& directory, const std::string& name,
                              int64 translator) const {
    BMessage message(kSaveFile);
    message.AddInt64("translator_id", translator);
    message.AddRef("directory", entry_ref(directory));
    message.AddString("name", name);
    return message;
}

void KirtoFixture::Append(const Lines& names) {
    for (const std::string& name : names)
        AppendFrame(*app_, PictureOf(1, 1, {0xFF646464}), name);
    desktop_.window->TakeTranscript();
}

Lines KirtoFixture::Names() const {
    Lines names;
    for (const FramePointer& frame : app_->Current()->frames) {
        const bool current = static_cast<int32>(names.size()) == app_->Selected();
        names.push_back(current ? "[" + frame->name + "]" : frame->name);
    }
    return names;
}

Lines KirtoFixture::FolderContent() const {
    Lines names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace kirto::test
