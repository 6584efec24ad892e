#pragma once

#include <QDialog>
#include <memory>

#include "ui/shortcuts/menu_shortcuts.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace kirto {

class KeyField;

// The list of all items of the menus with their keys, searchable by either. The key of the one
// that is chosen can be changed, at once: another item's key only after the user has agreed to
// take it. Deletes itself when it is closed. GUI thread.
class ShortcutsDialog : public QDialog {
  public:
    ShortcutsDialog(std::shared_ptr<MenuShortcuts> shortcuts, QWidget* parent);

  private:
    void MakeList();
    QWidget* MakeKeyRow();
    QWidget* MakeButtons();
    // The chosen item's place among the items, or nothing.
    std::optional<size_t> Chosen() const;
    void ShowKeys();
    void ShowChosen();
    void Search(const QString& text);
    // The user wants this key for the chosen item.
    void Propose(const QKeySequence& key);
    void Take();
    void RestoreChosen();
    void RestoreAll();
    // Shows what has been changed, or that it will be forgotten.
    void ShowResult(bool stored, const QString& note);

    std::shared_ptr<MenuShortcuts> shortcuts_;
    QLineEdit* search_;
    QTreeWidget* list_;
    KeyField* key_ = nullptr;
    QPushButton* restore_ = nullptr;
    QPushButton* take_ = nullptr;
    QLabel* note_;
    QKeySequence proposed_;  // another item's, while the user is asked
};

// Opens the dialog beside the window, or brings it to the front.
void ShowShortcuts(const std::shared_ptr<MenuShortcuts>& shortcuts, QWidget* parent);

}  // namespace kirto
