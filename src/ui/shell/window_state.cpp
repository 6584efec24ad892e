#include "ui/shell/window_state.h"

#include <QSettings>
#include <QSplitter>
#include <filesystem>

#include "settings/prefs.h"
#include "ui/player/player_view.h"
#include "ui/shell/player_state.h"

namespace kirto {

namespace {

// Beside the settings file.
QString StatePath() {
    const std::filesystem::path settings(Prefs::SettingsPath());
    return QString::fromLocal8Bit((settings.parent_path() / "Kirto_windows.ini").c_str());
}

constexpr const char* kSplitterKey = "main/splitter";
constexpr const char* kPlayerSplitterKey = "main/player_splitter";
constexpr const char* kPlayerKey = "main/player";
constexpr const char* kLabelsKey = "main/labels";
constexpr const char* kToolBarKey = "main/tool_bar";

}  // namespace

void RestoreSplitter(QSplitter& splitter) {
    const QSettings state(StatePath(), QSettings::IniFormat);
    splitter.restoreState(state.value(kSplitterKey).toByteArray());
}

void StoreSplitter(const QSplitter& splitter) {
    QSettings state(StatePath(), QSettings::IniFormat);
    state.setValue(kSplitterKey, splitter.saveState());
}

bool RestorePlayer(QSplitter& splitter, PlayerView& player) {
    const QSettings state(StatePath(), QSettings::IniFormat);
    splitter.restoreState(state.value(kPlayerSplitterKey).toByteArray());
    RestorePlayerChoices(state, player);
    return state.value(kPlayerKey, false).toBool();
}

void StorePlayer(const QSplitter& splitter, PlayerView& player) {
    QSettings state(StatePath(), QSettings::IniFormat);
    state.setValue(kPlayerSplitterKey, splitter.saveState());
    state.setValue(kPlayerKey, !player.isHidden());
    StorePlayerChoices(state, player);
}

bool RestoreLabels() {
    const QSettings state(StatePath(), QSettings::IniFormat);
    return state.value(kLabelsKey, true).toBool();
}

void StoreLabels(bool shown) {
    QSettings state(StatePath(), QSettings::IniFormat);
    state.setValue(kLabelsKey, shown);
}

bool RestoreToolBar() {
    const QSettings state(StatePath(), QSettings::IniFormat);
    return state.value(kToolBarKey, true).toBool();
}

void StoreToolBar(bool shown) {
    QSettings state(StatePath(), QSettings::IniFormat);
    state.setValue(kToolBarKey, shown);
}

}  // namespace kirto
