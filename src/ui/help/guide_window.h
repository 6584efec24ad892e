#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace kirto {

class GuidePage;

// A window that shows the guide, beside the main one. Deletes itself when it is closed. GUI thread.
class GuideWindow : public QWidget {
  public:
    // folder: with the guide's pages, or empty for none, which the window then says.
    GuideWindow(const QString& folder, QWidget* parent);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* MakeControls(const QString& folder);
    // Finds what the field holds behind the last place, or from the top where there is no more.
    void FindNext();

    GuidePage* page_;
    QLineEdit* wanted_ = nullptr;
    QLabel* note_;
};

// Opens the window with the guide that belongs to the program, or brings it to the front.
void ShowGuide(QWidget* parent);

}  // namespace kirto
