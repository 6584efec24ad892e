#include "ui/shortcuts/menu_shortcuts.h"

#include <QMenu>
#include <QSettings>
#include <QStringList>
#include <utility>

#include "ui/controls/menu_names.h"

namespace kirto {

namespace {

constexpr const char* kGroup = "keys";

// The usable keys among those that the file lists, in the form that all desktops share.
MenuShortcuts::Keys KeysOf(const QStringList& texts) {
    MenuShortcuts::Keys keys;
    for (const QString& text : texts) {
        const auto key = QKeySequence::fromString(text, QKeySequence::PortableText);
        if (MenuShortcuts::IsUsable(key)) keys.append(key);
    }
    return keys;
}

}  // namespace

MenuShortcuts::MenuShortcuts(const QMenuBar& bar, QString path) : path_(std::move(path)) {
    for (const QAction* title : bar.actions()) {
        if (!title->menu()) continue;
        for (QAction* action : title->menu()->actions()) {
            if (action->isSeparator() || action->menu()) continue;
            items_.push_back({title->text().remove('&'), action->text().remove('&'),
                              EnglishNameOf(*title) + ": " + EnglishNameOf(*action), action,
                              action->shortcuts()});
        }
    }
    Load();
}

bool MenuShortcuts::IsUsable(const QKeySequence& key) {
    if (key.count() != 1) return false;
    const Qt::Key pressed = key[0].key();
    if (pressed == Qt::Key_unknown || pressed == 0) return false;
    const bool is_function_key = pressed >= Qt::Key_F1 && pressed <= Qt::Key_F35;
    const Qt::KeyboardModifiers modifiers = key[0].keyboardModifiers();
    return is_function_key || (modifiers & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
}

std::optional<size_t> MenuShortcuts::OwnerOf(const QKeySequence& key) const {
    for (size_t i = 0; i < items_.size(); ++i) {
        if (!key.isEmpty() && items_[i].action->shortcuts().contains(key)) return i;
    }
    return std::nullopt;
}

void MenuShortcuts::Give(size_t item, const Keys& keys) {
    for (const QKeySequence& key : keys) {
        const auto owner = OwnerOf(key);
        if (!owner) continue;
        Keys left = items_[*owner].action->shortcuts();
        left.removeAll(key);
        items_[*owner].action->setShortcuts(left);
    }
    items_[item].action->setShortcuts(keys);
}

bool MenuShortcuts::SetKey(size_t item, const QKeySequence& key) {
    Give(item, key.isEmpty() ? Keys() : Keys{key});
    return Store();
}

bool MenuShortcuts::Restore(size_t item) {
    Give(item, items_[item].usual);
    return Store();
}

bool MenuShortcuts::RestoreAll() {
    for (const Item& item : items_)
        item.action->setShortcuts(item.usual);
    return Store();
}

// The user's keys go before the program's, which may have got new ones since.
void MenuShortcuts::Load() {
    QSettings file(path_, QSettings::IniFormat);
    file.beginGroup(kGroup);
    for (size_t i = 0; i < items_.size(); ++i) {
        if (!file.contains(items_[i].name)) continue;
        Give(i, KeysOf(file.value(items_[i].name).toStringList()));
    }
}

// Only what differs, so that keys that the program gets later reach those who changed others.
bool MenuShortcuts::Store() const {
    QSettings file(path_, QSettings::IniFormat);
    file.remove(kGroup);
    file.beginGroup(kGroup);
    for (const Item& item : items_) {
        const Keys keys = item.action->shortcuts();
        if (keys == item.usual) continue;
        QStringList texts;
        for (const QKeySequence& key : keys)
            texts.append(key.toString(QKeySequence::PortableText));
        file.setValue(item.name, texts);
    }
    file.sync();
    return file.status() == QSettings::NoError;
}

}  // namespace kirto
