#include "ui/controls/toolbar.h"

#include <QPainter>
#include <QVBoxLayout>
#include <qdrawutil.h>

Toolbar::Toolbar(const char* name, QWidget* window) : QWidget(window) {
    setObjectName(QString::fromUtf8(name));
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
    auto* whole = new QVBoxLayout(window);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(this);
}

void Toolbar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    qDrawShadePanel(&painter, rect(), palette(), false, 1);
}
