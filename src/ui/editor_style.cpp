#include "ui/editor_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyleOption>

namespace kirto {

namespace {

// The style's arrow to the right, in any size.
class ArrowIcon : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        QStyleOption option;
        option.rect = rect;
        option.palette = QApplication::palette();
        option.state = QStyle::State_Enabled;
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowRight, &option, painter);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new ArrowIcon(*this); }
};

}  // namespace

QIcon EditorStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton) return QIcon(new ArrowIcon);
    return QProxyStyle::standardIcon(icon, option, widget);
}

}  // namespace kirto
