#pragma once

#include <QGridLayout>

class QAbstractButton;

namespace kirto {

// The rows of a panel: labels or boxes at the left, fields of one width at the right. GUI thread;
// owned by the panel.
class PanelLayout : public QGridLayout {
  public:
    explicit PanelLayout(QWidget* panel);

    // A labeled field; the label is its buddy and its accessible name.
    void AddField(const QString& label, QWidget* field);
    // A field or menu that the box switches on and off.
    void AddField(QAbstractButton* box, QWidget* field);
    // A row of its own.
    void AddWide(QWidget* widget);
    // Two widgets that belong together, side by side.
    void AddPair(QWidget* left, QWidget* right);
    // Adds space before what follows.
    void AddGap();

  private:
    void AddRow(QWidget* left, QWidget* field);
};

}  // namespace kirto
