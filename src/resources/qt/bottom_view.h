#pragma once

#include <QWidget>

namespace kirto {

// The strip with a window's buttons: a line separates it from what stands above. GUI thread.
class BottomView : public QWidget {
  public:
    explicit BottomView(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kirto
