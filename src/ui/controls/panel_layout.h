#pragma once

#include <QGridLayout>

class QAbstractButton;
class QLabel;

namespace kirto {

// The rows of a panel: labels or boxes at the left, behind them fields with their units, and menus.
// GUI thread; owned by the panel.
class PanelLayout : public QGridLayout {
  public:
    explicit PanelLayout(QWidget* panel);

    // A labeled field or menu; the label is its buddy and its accessible name. unit: stands behind
    // it; null for none.
    void AddField(const QString& label, QWidget* field, QLabel* unit = nullptr);
    // A field or menu that the box switches on and off.
    void AddField(QAbstractButton* box, QWidget* field, QLabel* unit = nullptr);
    // What tells more of the field above.
    void AddBelow(QWidget* widget);
    // A row of its own.
    void AddWide(QWidget* widget);
    // Two widgets that belong together, side by side.
    void AddPair(QWidget* left, QWidget* right);
    // Adds space before what follows.
    void AddGap();

    // What the labels need, in pixels, and the width that they have at least: the same in all
    // panels, so that their fields stand below each other.
    int LabelWidth() const;
    void SetLabelWidth(int width) { setColumnMinimumWidth(0, width); }

  private:
    void AddRow(QWidget* left, QWidget* field, QLabel* unit);
};

}  // namespace kirto
