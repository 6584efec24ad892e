#pragma once

#include <QFileDialog>
#include <functional>
#include <memory>

#include "ui/file_panels/ref_filter.h"

class QCompleter;
class QLineEdit;

namespace kirto {

class FilterProxy;

// The toolkit's file dialog, with room for our own controls, filter and question before a file is
// replaced. GUI thread.
class FileDialog : public QFileDialog {
  public:
    // parent: the window that can't be used meanwhile; null for none.
    explicit FileDialog(QWidget* parent);
    ~FileDialog() override;

    // Shows only the entries that the filter offers. Names that are typed are accepted anyway.
    void SetFilter(std::unique_ptr<BRefFilter> filter);
    // Asked when a place to save to has been chosen, with its path; false leaves the dialog open.
    void SetReplaceCheck(std::function<bool(const QString& path)> may_write);
    // Puts the controls below the name field and makes room for them.
    void AddRow(QWidget* controls);
    // Called with the path that the name field names, whenever that changes; empty for none.
    void WatchChosenFile(std::function<void(const QString& path)> watch);
    // Starts over in the same folder, with the text in the name field.
    void Restart(const QString& name);
    // Puts another name into the name field where it still holds the first.
    void Rename(const QString& from, const QString& to);
    // The absolute paths of the files that are chosen or typed.
    QStringList ChosenFiles() const;

    void accept() override;

  protected:
    void hideEvent(QHideEvent* event) override;

  private:
    void FollowKeyboard(const QWidget* old, const QWidget* now);
    // Shows the folder typed into the name field; returns false if there is none.
    bool EntersFolder();

    QLineEdit* name_field_;
    QCompleter* completer_;  // of the name field, while that has the keyboard
    FilterProxy* proxy_ = nullptr;
    std::function<bool(const QString& path)> may_write_;
};

}  // namespace kirto
