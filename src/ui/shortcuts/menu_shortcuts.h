#pragma once

#include <QAction>
#include <QKeySequence>
#include <QList>
#include <QMenuBar>
#include <QString>
#include <optional>
#include <vector>

namespace kirto {

// The keys of a menu bar's items: those that the program gives them, and those that the user has
// given them instead, which a file of their own remembers. No two items have the same key. GUI
// thread; used no longer than the menu bar.
class MenuShortcuts {
  public:
    using Keys = QList<QKeySequence>;

    // One item. Submenus are none.
    struct Item {
        QString menu;   // its title
        QString label;  // as it was at first: some items change theirs
        QString name;   // of both in English, which the file knows it by
        QAction* action = nullptr;
        Keys usual;  // the program's
    };

    // Takes the keys that the items have for the program's, and gives them those of the file. What
    // the file says of unknown items, and keys that no item may have, count for nothing.
    // path: of the file, which need not exist.
    MenuShortcuts(const QMenuBar& bar, QString path);

    const std::vector<Item>& Items() const { return items_; }
    // Whether an item may have the key: a single one, which types nothing and moves nothing in a
    // field, and opens no menu. So it has Ctrl or Meta, or is a function key.
    static bool IsUsable(const QKeySequence& key);
    // The item that has the key, by its place among the items; nothing for no key.
    std::optional<size_t> OwnerOf(const QKeySequence& key) const;
    // The item has this key and no other, an empty one for none; whoever had it has it no more.
    // False if the file could not be written: then the keys hold until the program ends.
    bool SetKey(size_t item, const QKeySequence& key);
    // The item, or each, has the program's keys again; whoever had them has them no more.
    bool Restore(size_t item);
    bool RestoreAll();

  private:
    // Gives the item the keys, and takes them from all others.
    void Give(size_t item, const Keys& keys);
    void Load();
    bool Store() const;

    std::vector<Item> items_;
    const QString path_;
};

}  // namespace kirto
