#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QWidget>

#include "ui/shown_document.h"

// The line at the window's bottom: how many frames there are, or what is being done just now, with
// a bar where the text says how far it is. GUI thread.
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
