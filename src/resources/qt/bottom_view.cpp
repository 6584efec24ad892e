#include "resources/qt/bottom_view.h"

#include <QFrame>
#include <QPainter>
#include <QStyleOptionFrame>

namespace kirto {

BottomView::BottomView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void BottomView::paintEvent(QPaintEvent*) {
    QStyleOptionFrame line;
    line.initFrom(this);
    line.rect.setHeight(2);
    line.frameShape = QFrame::HLine;
    line.state |= QStyle::State_Sunken;
    line.lineWidth = 1;
    QPainter painter(this);
    style()->drawControl(QStyle::CE_ShapedFrame, &line, &painter, this);
}

}  // namespace kirto
