#pragma once

#include <QDialog>
#include <memory>

#include "app/export/export_trial.h"
#include "ui/controls/latest_work.h"
#include "ui/export/export_form.h"
#include "ui/export/export_presets.h"

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QPushButton;

namespace kirto {

class ExportView;

// Writes an animation in another form: the original and what would be written play side by side,
// the size of the file beside them, made anew in the background when a choice changes. The document
// stays as it is. Opens beside its parent window and deletes itself when it is closed. GUI thread.
class ExportDialog : public QDialog {
  public:
    struct Source {
        std::shared_ptr<const Animation> animation;  // with at least one frame
        QString folder;                              // where files are proposed
        QString name;                                // without extension
        bool pause_in_seconds = false;
        std::shared_ptr<PixelBudget> budget;
        BTranslatorRoster& roster;  // outlives the dialog
    };

    ExportDialog(Source source, QWidget* parent);
    ~ExportDialog() override;

    // Whether what is shown is what the choices ask for.
    bool IsReady() const { return !trial_; }
    // Writes the files that are shown; called on the GUI thread when that is over, with the reason
    // where they can't be written, else an empty text.
    void Write(const QString& path, std::function<void(const QString& problem)> done);

  private:
    void Arrange();
    QWidget* MakePresets();
    void TryAgain();
    void Take(const ExportTrial::Outcome& outcome);
    void Choose();
    void ShowPreset(const QString& name);
    void ListPresets(const QString& chosen);
    void KeepPreset();
    void RemovePreset();
    QString ExtensionOf(const ExportSettings& settings) const;
    QString ProposedName(const ExportSettings& settings) const;
    bool MayReplace(const QString& path, const QString& confirmed);

    const Source source_;
    ExportPresets presets_;
    ExportView* view_;
    ExportForm* form_;
    QComboBox* preset_;
    QPushButton* remove_;
    QLabel* size_;
    QLabel* given_up_;
    QDialogButtonBox* buttons_;
    QPushButton* export_;
    std::shared_ptr<ExportTrial> trial_;  // under way; null where all is shown
    std::shared_ptr<const ExportFiles> files_;
    ExportWish exported_;  // what the files were made by
    LatestWork trials_;
    LatestWork writing_;
};

}  // namespace kirto
