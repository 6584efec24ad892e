#include "ui/shell/window_state.h"

#include <QSettings>
#include <QSplitter>
#include <filesystem>

#include "settings/prefs.h"

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

}  // namespace

void RestoreSplitter(QSplitter& splitter) {
    const QSettings state(StatePath(), QSettings::IniFormat);
    splitter.restoreState(state.value(kSplitterKey).toByteArray());
}

void StoreSplitter(const QSplitter& splitter) {
    QSettings state(StatePath(), QSettings::IniFormat);
    state.setValue(kSplitterKey, splitter.saveState());
}

bool RestorePlayer(QSplitter& splitter) {
    const QSettings state(StatePath(), QSettings::IniFormat);
    splitter.restoreState(state.value(kPlayerSplitterKey).toByteArray());
    return state.value(kPlayerKey, false).toBool();
}

void StorePlayer(const QSplitter& splitter, bool shown) {
    QSettings state(StatePath(), QSettings::IniFormat);
    state.setValue(kPlayerSplitterKey, splitter.saveState());
    state.setValue(kPlayerKey, shown);
}

}  // namespace kirto
