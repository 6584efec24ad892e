#include "resources/qt/view_arrangement.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <algorithm>

#include "resources/view_rows.h"

namespace kirto {

namespace {

constexpr int kFieldColumn = 1;
constexpr char kLongestNumber[] = "-2147483648";

// Room for any number in the field.
void FitToNumbers(QLineEdit* field) {
    const QFontMetrics metrics = field->fontMetrics();
    QStyleOptionFrame option;
    option.initFrom(field);
    const QSize text(metrics.horizontalAdvance(kLongestNumber), metrics.height());
    const QSize frame = field->style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, field);
    field->setFixedWidth(frame.width() + metrics.averageCharWidth());
    field->setAlignment(Qt::AlignRight);
}

// Fills a grid, row by row: what labels fields in the first column, fields in the next.
class Arrangement {
  public:
    Arrangement(QWidget& parent, const std::vector<PlacedView>& views, float width);
    void AddRows();

  private:
    void AddRow(const ViewRow& row);
    void AddAtRight(const ViewRow& row);
    void AddAlone(QWidget* view, int indent);
    void AddCell(QWidget* view, int column, int indent);
    void AddField(const PlacedView& field, int column);
    // The width of an indent, and the space that sets rows apart.
    int IndentWidth() const { return parent_.fontMetrics().height(); }

    QWidget& parent_;
    const std::vector<PlacedView>& views_;
    std::vector<BRect> frames_;
    float width_;
    QGridLayout* grid_;
    int line_ = 0;                    // of the grid
    int columns_ = kFieldColumn + 1;  // besides one at the right that takes the spare room
};

Arrangement::Arrangement(QWidget& parent, const std::vector<PlacedView>& views, float width)
    : parent_(parent), views_(views), width_(width), grid_(new QGridLayout(&parent)) {
    for (const PlacedView& view : views) {
        frames_.push_back(view.frame);
    }
}

void Arrangement::AddRows() {
    const std::vector<ViewRow> rows = RowsOf(frames_, width_);
    for (const ViewRow& row : rows) {
        columns_ = std::max(columns_, static_cast<int>(row.views.size()));
    }
    for (const ViewRow& row : rows) {
        if (row.apart) grid_->setRowMinimumHeight(line_++, IndentWidth() / 2);
        AddRow(row);
        ++line_;
    }
    grid_->setColumnStretch(columns_, 1);
    // Boxes are as high as their content; elsewhere spare room stays below.
    const bool is_box = qobject_cast<QGroupBox*>(&parent_) != nullptr;
    if (!is_box && !(grid_->expandingDirections() & Qt::Vertical)) grid_->setRowStretch(line_, 1);
}

void Arrangement::AddRow(const ViewRow& row) {
    if (row.at_right) {
        AddAtRight(row);
        return;
    }
    const int indent = row.indented ? IndentWidth() : 0;
    const PlacedView& first = views_[row.views.front()];
    if (first.label) {
        AddCell(first.label, 0, indent);
        AddField(first, kFieldColumn);
    } else if (row.views.size() == 1) {
        AddAlone(first.view, indent);
    } else {
        AddCell(first.view, 0, indent);
    }
    for (size_t i = 1; i < row.views.size(); ++i) {
        const PlacedView& field = views_[row.views[i]];
        AddField(field, static_cast<int>(i));
        // What stands at its left says what a field without label is for.
        if (!field.label) field.view->setAccessibleName(first.view->accessibleName());
    }
}

void Arrangement::AddAtRight(const ViewRow& row) {
    auto* line = new QHBoxLayout;
    line->addStretch();
    for (const size_t i : row.views) {
        if (views_[i].label) line->addWidget(views_[i].label);
        line->addWidget(views_[i].view);
    }
    grid_->addLayout(line, line_, 0, 1, columns_ + 1);
}

void Arrangement::AddAlone(QWidget* view, int indent) {
    if (indent == 0) {
        grid_->addWidget(view, line_, 0, 1, columns_ + 1);
        return;
    }
    auto* line = new QHBoxLayout;
    line->addSpacing(indent);
    line->addWidget(view);
    grid_->addLayout(line, line_, 0, 1, columns_ + 1);
}

void Arrangement::AddCell(QWidget* view, int column, int indent) {
    auto* line = new QHBoxLayout;
    line->addSpacing(indent);
    line->addWidget(view);
    grid_->addLayout(line, line_, column);
}

void Arrangement::AddField(const PlacedView& field, int column) {
    auto* line_edit = qobject_cast<QLineEdit*>(field.view);
    const bool widens = ReachesRightMargin(field.frame, frames_, width_);
    if (line_edit && !widens) FitToNumbers(line_edit);
    grid_->addWidget(field.view, line_, column, 1, widens ? columns_ + 1 - column : 1);
}

}  // namespace

void ArrangeViews(QWidget& parent, const std::vector<PlacedView>& views, float width) {
    Arrangement(parent, views, width).AddRows();
}

}  // namespace kirto
