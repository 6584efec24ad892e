#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <memory>

#include "app/palette_use.h"
#include "kit/messenger.h"
#include "ui/controls/latest_work.h"
#include "ui/controls/shown_document.h"
#include "ui/controls/swatch_grid.h"

// The window "Colors": those that the current frame or all frames are saved with, and how many
// pixels each of them has, which a thread of its own counts. A click may make one of them the
// background or the transparent color. Stays open beside its parent window. GUI thread.
class ColorsWindow : public QDialog {
  public:
    // shown outlives the window. application: receives the edits.
    ColorsWindow(const kirto::ShownDocument& shown, BMessenger application, QWidget* parent);

    // Follows the document that is shown now, once the pixels have been counted; at rest while the
    // window is hidden.
    void UpdateDisplay();

    QComboBox* scope;  // the current frame, all frames
    QComboBox* order;  // by index, hue, use
    QComboBox* click;  // what it does: nothing, background, transparent
    kirto::SwatchGrid* swatches;
    QLabel* told;  // of the color below the pointer

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void Arrange();
    QComboBox* MakeMenu(const char* name, const QString& label, const QStringList& items,
                        const QString& tip);
    void Show(const kirto::PaletteUse& use, const kirto::Animation& animation);
    void Choose(int index);

    const kirto::ShownDocument& shown_;
    const BMessenger application_;
    // What was asked for last.
    std::shared_ptr<const kirto::Animation> counted_;
    int counted_scope_ = -1;
    kirto::LatestWork work_;
};
