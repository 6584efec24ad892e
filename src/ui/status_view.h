#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "ui/shown_document.h"

// The line at the window's bottom: how many frames there are, or the work in progress, with a
// progress bar if the text tells how far it is. GUI thread.
class StatusView : public QWidget {
  public:
    // shown outlives the view.
    explicit StatusView(const kirto::ShownDocument& shown, QWidget* parent = nullptr);

    // Shows the text as it is; null: the document's state.
    void UpdateDisplay(const char* text);
    void UpdateDisplay() { UpdateDisplay(nullptr); }
    void ResetDisplay();

    QLabel* status;
    QProgressBar* progress;

  private:
    void ShowProgress(const QString& text);

    const kirto::ShownDocument& shown_;
};
