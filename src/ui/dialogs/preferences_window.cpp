#include "ui/dialogs/preferences_window.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <filesystem>
#include <type_traits>

#include "base/core_text.h"
#include "base/directories.h"
#include "base/text.h"
#include "color/color_text.h"
#include "color/palette.h"
#include "document/command_codes.h"
#include "kit/alert.h"
#include "kit/file.h"
#include "ui/controls/check_input.h"
#include "ui/controls/color_swatch.h"
#include "ui/dialogs/preferences_command_codes.h"

namespace {

constexpr const char* kSubject = CoreText::Later("This value");
constexpr int32 kLargestIndex = 255;
constexpr int32 kLargestAlpha = 255;
constexpr int32 kLeastThumbnail = 10;      // pixels
constexpr int32 kLargestThumbnail = 1000;  // pixels
constexpr size_t kLongestFileName = 255;   // bytes
constexpr size_t kLongestFolder = 1023;    // bytes
constexpr size_t kLongestColors = 255;     // bytes

// A view's name and the setting that it shows.
template <typename Value>
struct Binding {
    const char* name;
    Value Prefs::*setting;
};

constexpr Binding<int32> kNumbers[] = {
    {"global_width", &Prefs::global_width},
    {"global_height", &Prefs::global_height},
    {"global_loopcount", &Prefs::global_loopcount},
    {"palette_backgroundindex", &Prefs::palette_backgroundindex},
    {"palette_transparentindex", &Prefs::palette_transparentindex},
    {"thumbnail_presetvalue", &Prefs::thumbnail_heightvalue},
    {"thumbnail_maxheight", &Prefs::thumbnail_maxheight},
    {"thumbnail_minheight", &Prefs::thumbnail_minheight},
    {"animation_threshold", &Prefs::animation_threshold},
};

constexpr Binding<bool> kFlags[] = {
    {"global_usepause", &Prefs::global_usepause},
    {"global_useloop", &Prefs::global_useloop},
    {"global_setdimensions", &Prefs::global_setdimensions},
    {"palette_dither", &Prefs::palette_dither},
    {"palette_usetransparent", &Prefs::palette_usetransparent},
    {"thumbnail_drawtransparent", &Prefs::thumbnail_drawtransparent},
    {"animation_gifinterlaced", &Prefs::animation_gifinterlaced},
    {"animation_gifcomment", &Prefs::animation_gifcomment},
    {"animation_gifloadfullframe", &Prefs::animation_gifloadfullframe},
    {"misc_dimensions", &Prefs::misc_savewindowdimensions},
    {"animation_faithful", &Prefs::animation_faithful},
    {"animation_jointcolors", &Prefs::animation_jointcolors},
};

// A setting that counts every value it has no meaning for as the last that it has one for.
constexpr int32 kOtherwise = 3;

int32 KnownOr(int32 value, int32 otherwise) {
    return value >= 0 && value < otherwise ? value : otherwise;
}

rgb_color ColorOf(int32 setting) {
    const auto byte = [setting](int32 shift) { return static_cast<uint8>(setting >> shift & 255); };
    return {byte(16), byte(8), byte(0), 255};
}

// Leaves a setting whose text the user didn't change alone: its bytes may be no text at all.
void TakeText(const kirto::TextControl& field, size_t longest, std::string* setting) {
    if (field.text() == QString::fromStdString(*setting)) return;
    *setting = kirto::CutUtf8(field.text().toStdString(), longest);
}

}  // namespace

PreferencesWindow::PreferencesWindow(const kirto::Editor& editor, const Prefs& current,
                                     QWidget* parent, std::function<BRect()> window_frame)
    : IEWindow("PreferencesWindow", *editor.resources, parent),
      prefs_(current),
      application_(editor.application),
      window_frame_(std::move(window_frame)) {
    RestorePointers();
    ShowSettings();
}

template <typename Control>
Control* PreferencesWindow::RestorePointer(const char* name) {
    if (auto* control = dynamic_cast<Control*>(findChild<QWidget*>(name))) return control;
    // A stand-in that nobody sees, so that its setting stays as it is.
    Control* control = nullptr;
    if constexpr (std::is_same_v<Control, kirto::TextControl>) {
        control = new kirto::TextControl(name, BMessage(), BMessenger(), this);
    } else {
        control = new Control(this);
    }
    control->hide();
    return control;
}

void PreferencesWindow::RestorePointers() {
    tabs_ = findChild<QTabWidget*>("tabview");
    for (const auto& number : kNumbers) {
        fields_[number.name] = RestorePointer<kirto::TextControl>(number.name);
    }
    for (const char* name : {"global_pauselength", "palette_filename", "misc_filelocation",
                             "animation_exactcolors", "animation_matte"}) {
        fields_[name] = RestorePointer<kirto::TextControl>(name);
    }
    for (const auto& flag : kFlags) {
        boxes_[flag.name] = RestorePointer<QCheckBox>(flag.name);
    }
    RestoreChoices();
    ShowSwatch();
    // Clicking a button leaves no field: what "Cancel" discards is not checked first, and "Save"
    // sees to the checks itself.
    for (const char* name : {"SaveButton", "CancelButton"}) {
        if (auto* button = findChild<QPushButton*>(name)) button->setFocusPolicy(Qt::TabFocus);
    }
    if (auto* save = findChild<QPushButton*>("SaveButton")) save->setDefault(true);
}

void PreferencesWindow::ShowSwatch() {
    kirto::TextControl& field = Field("animation_matte");
    const auto color = [this] {
        const rgb_color matte = ColorOf(Matte());
        return QColor(matte.red, matte.green, matte.blue);
    };
    auto* swatch = new kirto::ColorSwatch("animation_matteswatch", color, &field);
    const int side = field.fontMetrics().ascent();
    swatch->setFixedSize(side, side);
    auto* layout = new QHBoxLayout(&field);
    layout->setContentsMargins(side / 2, 0, 0, 0);
    layout->addWidget(swatch, 0, Qt::AlignLeft | Qt::AlignVCenter);
    field.setTextMargins(side * 2, 0, 0, 0);
    connect(&field, &kirto::TextControl::textChanged, swatch, [swatch] { swatch->update(); });
}

void PreferencesWindow::RestoreChoices() {
    struct Radio {
        const char* name;
        Choice choice;
        int32 value;
    };
    static constexpr Radio kRadios[] = {
        {"global_hundredths", kPauseUnit, 0},
        {"global_seconds", kPauseUnit, 1},
        {"palette_websafe", kMapping, kirto::kPaletteWebSafe},
        {"palette_be", kMapping, kirto::kPaletteSystem},
        {"palette_greyscale", kMapping, kirto::kPaletteGreyscale},
        {"palette_file", kMapping, kirto::kPaletteFromFile},
        {"thumbnail_fullsize", kThumbnailHeight, 0},
        {"thumbnail_halfsize", kThumbnailHeight, 1},
        {"thumbnail_preset", kThumbnailHeight, 2},
        {"thumbnail_nochange", kThumbnailHeight, kOtherwise},
        {"animation_gifnone", kDisposal, 0},
        {"animation_gifleave", kDisposal, 1},
        {"animation_gifbackground", kDisposal, 2},
        {"animation_gifprevious", kDisposal, kOtherwise},
        {"animation_nodithering", kDithering, 0},
        {"animation_diffusion", kDithering, 1},
        {"animation_pattern", kDithering, 2},
        {"misc_thumbnailview", kMode, 0},
        {"misc_framelistview", kMode, 1},
    };
    for (QButtonGroup*& group : choices_) {
        group = new QButtonGroup(this);
    }
    for (const Radio& radio : kRadios) {
        choices_[radio.choice]->addButton(RestorePointer<QRadioButton>(radio.name), radio.value);
    }
}

void PreferencesWindow::ShowFaithful(bool on) {
    boxes_.at("animation_faithful")->setChecked(on);
}

void PreferencesWindow::ShowTab(const char* name) {
    auto* view = findChild<QWidget*>(name);
    if (tabs_ && tabs_->indexOf(view) >= 0) tabs_->setCurrentWidget(view);
}

void PreferencesWindow::ShowSettings() {
    for (const auto& number : kNumbers) {
        Field(number.name).SetText(QString::number(prefs_.*number.setting));
    }
    for (const auto& flag : kFlags) {
        boxes_.at(flag.name)->setChecked(prefs_.*flag.setting);
    }
    const std::string pause = kirto::Format("%01.2f", prefs_.global_pauselength);
    Field("global_pauselength").SetText(QString::fromStdString(pause));
    Field("palette_filename").SetText(QString::fromStdString(prefs_.palette_filename));
    Field("misc_filelocation").SetText(QString::fromStdString(prefs_.misc_tempfilelocation));
    Field("animation_exactcolors").SetText(QString::fromStdString(prefs_.animation_exactcolors));
    ShowMatte();
    ShowChoice(kPauseUnit, prefs_.global_pauseinseconds ? 1 : 0);
    ShowChoice(kMapping, prefs_.palette_mapping);
    ShowChoice(kThumbnailHeight, KnownOr(prefs_.thumbnail_height, kOtherwise));
    ShowChoice(kDisposal, KnownOr(prefs_.animation_gifdisposal, kOtherwise));
    ShowChoice(kDithering, prefs_.animation_dithering);
    ShowChoice(kMode, prefs_.misc_preferredmode);
    EnableDependents();
}

void PreferencesWindow::TakeSettings() {
    for (const auto& number : kNumbers) {
        prefs_.*number.setting = NumberIn(number.name);
    }
    for (const auto& flag : kFlags) {
        prefs_.*flag.setting = IsOn(flag.name);
    }
    prefs_.global_pauselength = Field("global_pauselength").text().toDouble();
    TakeText(Field("palette_filename"), kLongestFileName, &prefs_.palette_filename);
    TakeText(Field("misc_filelocation"), kLongestFolder, &prefs_.misc_tempfilelocation);
    TakeText(Field("animation_exactcolors"), kLongestColors, &prefs_.animation_exactcolors);
    prefs_.animation_matte = Matte();
    prefs_.global_pauseinseconds = Chosen(kPauseUnit, 0) == 1;
    prefs_.palette_mapping = Chosen(kMapping, prefs_.palette_mapping);
    prefs_.thumbnail_height = Chosen(kThumbnailHeight, kOtherwise);
    prefs_.animation_gifdisposal = Chosen(kDisposal, kOtherwise);
    prefs_.animation_dithering = Chosen(kDithering, prefs_.animation_dithering);
    prefs_.misc_preferredmode = Chosen(kMode, prefs_.misc_preferredmode);
}

void PreferencesWindow::ShowChoice(Choice choice, int32 value) {
    if (QAbstractButton* radio = choices_[choice]->button(value)) radio->setChecked(true);
}

int32 PreferencesWindow::Chosen(Choice choice, int32 otherwise) const {
    const int32 value = choices_[choice]->checkedId();
    return value >= 0 ? value : otherwise;
}

void PreferencesWindow::EnableDependents() {
    Field("global_pauselength").setEnabled(IsOn("global_usepause"));
    Field("global_loopcount").setEnabled(IsOn("global_useloop"));
    Field("palette_transparentindex").setEnabled(IsOn("palette_usetransparent"));
    Field("palette_filename").setEnabled(Chosen(kMapping, -1) == kirto::kPaletteFromFile);
    Field("thumbnail_presetvalue").setEnabled(Chosen(kThumbnailHeight, -1) == 2);
}

void PreferencesWindow::MessageReceived(BMessage* message) {
    switch (message->what) {
        case kirto::kPrefsUsePause:
        case kirto::kPrefsUseLoop:
        case kirto::kPrefsUseTransparent:
        case kirto::kPrefsWebSafe:
        case kirto::kPrefsSystemPalette:
        case kirto::kPrefsGreyscale:
        case kirto::kPrefsPaletteFromFile:
        case kirto::kPrefsFullSize:
        case kirto::kPrefsHalfSize:
        case kirto::kPrefsPreset:
        case kirto::kPrefsNoChange:
            EnableDependents();
            return;
        case kirto::kPrefsSave:
            if (CommitEdits()) {
                Messenger().SendMessage(kirto::kPrefsSave);
                return;
            }
            Save();
            Close();
            return;
        case kirto::kPrefsCancel:
            Close();
            return;
        default:
            if (CheckNumber(message->what) || CheckPath(message->what)) return;
            if (CheckColors(message->what)) return;
            IEWindow::MessageReceived(message);
    }
}

bool PreferencesWindow::CommitEdits() {
    bool committed = false;
    for (const auto& [name, field] : fields_) {
        if (!field->IsBeingEdited()) continue;
        field->Commit();
        committed = true;
    }
    return committed;
}

bool PreferencesWindow::CheckNumber(uint32 command) {
    const auto check = [this](const char* field, int32 min, int32 max) {
        kirto::CheckInput(Field(field), min, max, kSubject);
        return true;
    };
    switch (command) {
        case kirto::kPrefsWidth:
            return check("global_width", 0, kirto::kNoUpperBound);
        case kirto::kPrefsHeight:
            return check("global_height", 0, kirto::kNoUpperBound);
        case kirto::kPrefsLoopCount:
            return check("global_loopcount", 0, kirto::kNoUpperBound);
        case kirto::kPrefsPauseLength:
            kirto::CheckInput(Field("global_pauselength"), 0.0, kirto::kNoUpperBoundReal, kSubject);
            return true;
        case kirto::kPrefsBackgroundIndex:
            return check("palette_backgroundindex", 0, kLargestIndex);
        case kirto::kPrefsTransparentIndex:
            return check("palette_transparentindex", 0, kLargestIndex);
        case kirto::kPrefsPresetValue:
            return check("thumbnail_presetvalue", kLeastThumbnail, kLargestThumbnail);
        case kirto::kPrefsMaxHeight:
            return check("thumbnail_maxheight", NumberIn("thumbnail_minheight"), kLargestThumbnail);
        case kirto::kPrefsMinHeight:
            return check("thumbnail_minheight", kLeastThumbnail, NumberIn("thumbnail_maxheight"));
        case kirto::kPrefsThreshold:
            return check("animation_threshold", 0, kLargestAlpha);
        default:
            return false;
    }
}

bool PreferencesWindow::CheckPath(uint32 command) {
    if (command == kirto::kPrefsPaletteFile) {
        kirto::TextControl& field = Field("palette_filename");
        if (!CheckIfExists(field.text().toStdString(), true)) {
            kirto::Warn(CoreText::tr("You must enter a valid, absolute path and file name."));
            field.SetText("");
        }
        return true;
    }
    if (command == kirto::kPrefsTemporaryFolder) {
        kirto::TextControl& field = Field("misc_filelocation");
        if (!CheckIfExists(field.text().toStdString(), false)) {
            kirto::Warn(CoreText::tr("You must enter a valid absolute path."));
            field.SetText(QString::fromStdString(kirto::HomeDirectory()));
        }
        return true;
    }
    return false;
}

bool PreferencesWindow::CheckColors(uint32 command) {
    if (command == kirto::kPrefsMatte) {
        rgb_color color{};
        if (!kirto::ParseColor(Field("animation_matte").text().toStdString(), &color)) {
            kirto::Warn(CoreText::tr("You must enter a color as #rrggbb."));
            ShowMatte();
        }
        return true;
    }
    if (command == kirto::kPrefsExactColors) {
        kirto::TextControl& field = Field("animation_exactcolors");
        std::vector<rgb_color> colors;
        if (!kirto::ParseColors(field.text().toStdString(), kLongestColors, &colors)) {
            kirto::Warn(
                CoreText::tr("You must enter colors as #rrggbb, with blanks between them."));
            field.SetText(QString::fromStdString(prefs_.animation_exactcolors));
        }
        return true;
    }
    return false;
}

// The color that is shown, or the setting where it is none.
int32 PreferencesWindow::Matte() const {
    const std::string text = Field("animation_matte").text().toStdString();
    rgb_color color{};
    if (!kirto::ParseColor(text, &color) || color == ColorOf(prefs_.animation_matte))
        return prefs_.animation_matte;
    return color.red << 16 | color.green << 8 | color.blue;
}

void PreferencesWindow::ShowMatte() {
    const std::string text = kirto::TextOfColor(ColorOf(prefs_.animation_matte));
    Field("animation_matte").SetText(QString::fromStdString(text));
}

bool PreferencesWindow::CheckIfExists(const std::string& path, bool file) {
    if (file) return BFile(path, B_READ_ONLY).InitCheck() == B_OK;
    std::error_code error;
    const std::filesystem::directory_iterator opened(path, error);
    return !error;
}

void PreferencesWindow::Save() {
    TakeSettings();
    BMessage settings(kirto::kStoreSettings);
    prefs_.AddTo(&settings);
    settings.AddRect("window_frame", window_frame_());
    application_.SendMessage(settings);
}

int32 PreferencesWindow::NumberIn(const char* field) const {
    return Field(field).text().toInt();
}
