#include "ui/shell/player_state.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSlider>
#include <cmath>

#include "ui/player/player_view.h"

namespace kirto {

namespace {

constexpr const char* kZoomKey = "player/zoom";
constexpr double kFitted = 0;

QString KeyOf(const QWidget& control) {
    return "player/" + control.objectName();
}

// Those whose state is a choice of the user's, by their names.
template <typename Control>
Control* Named(PlayerView& player, const char* name) {
    return player.findChild<Control*>(name);
}

constexpr const char* kMenus[] = {"PlayerLoop", "OnionSkin"};
constexpr const char* kBoxes[] = {"LikeABrowser"};
constexpr const char* kSpeed = "PlayerSpeed";
constexpr const char* kOpacity = "OnionOpacity";

}  // namespace

void RestorePlayerChoices(const QSettings& state, PlayerView& player) {
    for (const char* name : kMenus) {
        auto* menu = Named<QComboBox>(player, name);
        bool is_number = false;
        const int choice = state.value(KeyOf(*menu)).toInt(&is_number);
        if (is_number && choice >= 0 && choice < menu->count()) menu->setCurrentIndex(choice);
    }
    for (const char* name : kBoxes) {
        auto* box = Named<QCheckBox>(player, name);
        box->setChecked(state.value(KeyOf(*box), box->isChecked()).toBool());
    }
    bool is_number = false;
    auto* speed = Named<QDoubleSpinBox>(player, kSpeed);
    const double factor = state.value(KeyOf(*speed)).toDouble(&is_number);
    if (is_number && std::isfinite(factor)) speed->setValue(factor);
    auto* opacity = Named<QSlider>(player, kOpacity);
    opacity->setValue(state.value(KeyOf(*opacity), opacity->value()).toInt());
    const double zoom = state.value(kZoomKey, kFitted).toDouble();
    if (std::isfinite(zoom) && zoom > kFitted) player.Pane().SetZoom(zoom);
}

void StorePlayerChoices(QSettings& state, PlayerView& player) {
    for (const char* name : kMenus) {
        const auto* menu = Named<QComboBox>(player, name);
        state.setValue(KeyOf(*menu), menu->currentIndex());
    }
    for (const char* name : kBoxes) {
        const auto* box = Named<QCheckBox>(player, name);
        state.setValue(KeyOf(*box), box->isChecked());
    }
    const auto* speed = Named<QDoubleSpinBox>(player, kSpeed);
    state.setValue(KeyOf(*speed), speed->value());
    const auto* opacity = Named<QSlider>(player, kOpacity);
    state.setValue(KeyOf(*opacity), opacity->value());
    const PicturePane& pane = player.Pane();
    state.setValue(kZoomKey, pane.IsFitted() ? kFitted : pane.Zoom());
}

}  // namespace kirto
