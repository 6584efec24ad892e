#pragma once

#include <QBoxLayout>
#include <QWidget>

namespace kirto {

// Two groups of controls in a row. If the row is too narrow for both, the second group goes below
// the first. GUI thread.
class FoldingRow : public QWidget {
  public:
    // The layouts, which become the row's, hold the controls.
    FoldingRow(QLayout* first, QLayout* second, QWidget* parent);

    QSize minimumSizeHint() const override;
    bool IsFolded() const { return layout_->direction() == QBoxLayout::TopToBottom; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    // The width that both groups need beside each other.
    int WholeWidth() const;

    QBoxLayout* layout_;
    QLayout* first_;
    QLayout* second_;
};

}  // namespace kirto
