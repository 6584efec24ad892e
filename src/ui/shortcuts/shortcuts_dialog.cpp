#include "ui/shortcuts/shortcuts_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "base/core_text.h"
#include "kit/alert.h"
#include "kit/qt/ui_text.h"
#include "ui/shortcuts/key_field.h"

namespace kirto {

namespace {

constexpr const char* kName = "ShortcutsDialog";
constexpr int kKeyColumn = 2;
constexpr int kWidthInLetters = 70;
constexpr int kHeightInLines = 32;

QString TextOf(const MenuShortcuts::Keys& keys) {
    return QKeySequence::listToString(keys, QKeySequence::NativeText);
}

}  // namespace

ShortcutsDialog::ShortcutsDialog(std::shared_ptr<MenuShortcuts> shortcuts, QWidget* parent)
    : QDialog(parent),
      shortcuts_(std::move(shortcuts)),
      search_(new QLineEdit(this)),
      list_(new QTreeWidget(this)),
      note_(new QLabel(this)) {
    setObjectName(kName);
    setWindowTitle(UiText::tr("Keyboard Shortcuts"));
    setAttribute(Qt::WA_DeleteOnClose);
    search_->setObjectName("Search");
    search_->setAccessibleName(UiText::tr("Search"));
    search_->setPlaceholderText(UiText::tr("Search for an action or a key"));
    search_->setToolTip(UiText::tr("Shows only the actions with this in their name or key"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { Search(text); });
    note_->setObjectName("Note");
    note_->setWordWrap(true);
    MakeList();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(search_);
    layout->addWidget(list_, 1);
    layout->addWidget(MakeKeyRow());
    layout->addWidget(note_);
    layout->addWidget(MakeButtons());
    const QSize wanted(fontMetrics().averageCharWidth() * kWidthInLetters,
                       fontMetrics().lineSpacing() * kHeightInLines);
    resize(wanted.boundedTo(screen()->availableSize()));
    list_->setCurrentItem(list_->topLevelItem(0));
    search_->setFocus();
}

void ShortcutsDialog::MakeList() {
    list_->setObjectName("Shortcuts");
    list_->setAccessibleName(UiText::tr("Actions and their keys"));
    list_->setHeaderLabels({UiText::tr("Menu"), UiText::tr("Action"), UiText::tr("Key")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    for (const MenuShortcuts::Item& item : shortcuts_->Items())
        new QTreeWidgetItem(list_, {item.menu, item.label, QString()});
    ShowKeys();
    for (int column = 0; column < kKeyColumn; ++column)
        list_->resizeColumnToContents(column);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this] { ShowChosen(); });
}

QWidget* ShortcutsDialog::MakeKeyRow() {
    auto* row = new QWidget(this);
    auto* label = new QLabel(UiText::tr("&Key:"), row);
    key_ = new KeyField(row);
    key_->setObjectName("Key");
    key_->setAccessibleName(UiText::tr("Key of the chosen action"));
    key_->setToolTip(UiText::tr("Hit the key that the action is to have; Backspace for none"));
    label->setBuddy(key_);
    key_->WhenHit([this](const QKeySequence& key) { Propose(key); });
    take_ = new QPushButton(UiText::tr("&Take Over"), row);
    take_->setObjectName("TakeOver");
    take_->setToolTip(UiText::tr("Takes the key from the other action"));
    take_->setAutoDefault(false);
    connect(take_, &QPushButton::clicked, this, [this] { Take(); });
    restore_ = new QPushButton(UiText::tr("&Default"), row);
    restore_->setObjectName("Default");
    restore_->setToolTip(UiText::tr("The key that this action has at first"));
    restore_->setAutoDefault(false);
    connect(restore_, &QPushButton::clicked, this, [this] { RestoreChosen(); });
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(key_, 1);
    layout->addWidget(take_);
    layout->addWidget(restore_);
    return row;
}

QWidget* ShortcutsDialog::MakeButtons() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    QPushButton* all =
        buttons->addButton(UiText::tr("&Restore Defaults"), QDialogButtonBox::ResetRole);
    all->setObjectName("RestoreDefaults");
    all->setToolTip(UiText::tr("The keys that all actions have at first"));
    all->setAutoDefault(false);
    connect(all, &QPushButton::clicked, this, [this] { RestoreAll(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    return buttons;
}

std::optional<size_t> ShortcutsDialog::Chosen() const {
    QTreeWidgetItem* row = list_->currentItem();
    if (!row || row->isHidden()) return std::nullopt;
    return static_cast<size_t>(list_->indexOfTopLevelItem(row));
}

void ShortcutsDialog::ShowKeys() {
    int row = 0;
    for (const MenuShortcuts::Item& item : shortcuts_->Items())
        list_->topLevelItem(row++)->setText(kKeyColumn, TextOf(item.action->shortcuts()));
}

void ShortcutsDialog::ShowChosen() {
    const auto chosen = Chosen();
    key_->setEnabled(chosen.has_value());
    key_->clear();
    proposed_ = {};
    take_->hide();
    note_->clear();
    restore_->setEnabled(false);
    if (!chosen) return;
    const MenuShortcuts::Item& item = shortcuts_->Items()[*chosen];
    key_->ShowKey(item.action->shortcut());
    restore_->setEnabled(item.action->shortcuts() != item.usual);
}

void ShortcutsDialog::Search(const QString& text) {
    QTreeWidgetItem* first = nullptr;
    for (int i = 0; i < list_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = list_->topLevelItem(i);
        bool matches = false;
        for (int column = 0; column <= kKeyColumn; ++column)
            matches = matches || row->text(column).contains(text, Qt::CaseInsensitive);
        row->setHidden(!matches);
        if (matches && !first) first = row;
    }
    if (!Chosen()) list_->setCurrentItem(first);
    ShowChosen();
}

void ShortcutsDialog::Propose(const QKeySequence& key) {
    const auto chosen = Chosen();
    if (!chosen) return;
    proposed_ = {};
    take_->hide();
    if (!key.isEmpty() && !MenuShortcuts::IsUsable(key)) {
        note_->setText(
            UiText::tr("Such a key is needed for typing, moving or opening menus. Hit one with "
                       "Ctrl, or a function key."));
        return;
    }
    const auto owner = shortcuts_->OwnerOf(key);
    if (!owner || *owner == *chosen) {
        ShowResult(shortcuts_->SetKey(*chosen, key), {});
        return;
    }
    proposed_ = key;
    note_->setText(UiText::tr(R"(%1 is the key of "%2" in the menu "%3".)")
                       .arg(key.toString(QKeySequence::NativeText),
                            shortcuts_->Items()[*owner].label, shortcuts_->Items()[*owner].menu));
    take_->show();
}

void ShortcutsDialog::Take() {
    const auto chosen = Chosen();
    const auto owner = shortcuts_->OwnerOf(proposed_);
    if (!chosen || !owner) return;
    const QString loser = shortcuts_->Items()[*owner].label;
    const QString key = proposed_.toString(QKeySequence::NativeText);
    const bool stored = shortcuts_->SetKey(*chosen, proposed_);
    ShowResult(stored, UiText::tr("\"%1\" no longer has %2.").arg(loser, key));
    key_->setFocus();
}

void ShortcutsDialog::RestoreChosen() {
    if (const auto chosen = Chosen()) ShowResult(shortcuts_->Restore(*chosen), {});
}

void ShortcutsDialog::RestoreAll() {
    constexpr int32 kRestore = 1;
    BAlert alert(
        "", CoreText::tr("Do you want all actions to have the keys again that they had at first?"),
        CoreText::Later("Cancel"), CoreText::Later("Restore"));
    if (alert.Go() == kRestore) ShowResult(shortcuts_->RestoreAll(), {});
}

void ShortcutsDialog::ShowResult(bool stored, const QString& note) {
    ShowKeys();
    ShowChosen();
    note_->setText(
        stored ? note
               : UiText::tr("The keys could not be stored; they hold until the program ends."));
}

void ShowShortcuts(const std::shared_ptr<MenuShortcuts>& shortcuts, QWidget* parent) {
    auto* dialog = parent->findChild<QDialog*>(kName, Qt::FindDirectChildrenOnly);
    if (!dialog) dialog = new ShortcutsDialog(shortcuts, parent);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

}  // namespace kirto
