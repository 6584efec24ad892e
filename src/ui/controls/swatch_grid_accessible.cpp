#include "ui/controls/swatch_grid_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

#include "ui/controls/swatch_grid.h"

namespace kirto {

namespace {

// One color. It outlives its palette, and stands for nothing then.
class SwatchAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    SwatchAccessible(SwatchGrid& grid, int index) : grid_(&grid), index_(index) {}

    bool isValid() const override { return grid_ && index_ < grid_->Count(); }
    QObject* object() const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessibleInterface* parent() const override {
        return grid_ ? QAccessible::queryAccessibleInterface(grid_) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name && isValid() ? grid_->NameOf(index_) : QString();
    }
    QRect rect() const override {
        if (!isValid()) return {};
        const QRect area = grid_->AreaOf(index_);
        return {grid_->mapToGlobal(area.topLeft()), area.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = !isValid();
        if (state.invalid) return state;
        state.selectable = state.focusable = true;
        state.selected = index_ == grid_->Current();
        state.focused = state.selected && grid_->hasFocus();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type != QAccessible::ActionInterface) return nullptr;
        return static_cast<QAccessibleActionInterface*>(this);
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction() && isValid()) grid_->Choose(index_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    int Index() const { return index_; }

  private:
    const QPointer<SwatchGrid> grid_;
    const int index_;
};

class SwatchGridAccessible : public QAccessibleWidget {
  public:
    explicit SwatchGridAccessible(SwatchGrid& grid)
        : QAccessibleWidget(&grid, QAccessible::List), grid_(grid) {}
    ~SwatchGridAccessible() override {
        for (const QAccessible::Id id : swatches_)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return grid_.Count(); }
    QAccessibleInterface* child(int place) const override {
        const bool known = place >= 0 && place < grid_.Count();
        return known ? SwatchOf(grid_.IndexOf(place)) : nullptr;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const int index = grid_.IndexAt(grid_.mapFromGlobal(QPoint(x, y)));
        return index >= 0 ? SwatchOf(index) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* swatch = dynamic_cast<const SwatchAccessible*>(child);
        return swatch ? grid_.PlaceOf(swatch->Index()) : -1;
    }
    QAccessibleInterface* focusChild() const override {
        return grid_.hasFocus() && grid_.Current() >= 0 ? SwatchOf(grid_.Current()) : nullptr;
    }

  private:
    QAccessibleInterface* SwatchOf(int index) const {
        if (const auto known = swatches_.constFind(index); known != swatches_.constEnd())
            return QAccessible::accessibleInterface(*known);
        auto* swatch = new SwatchAccessible(grid_, index);
        swatches_.insert(index, QAccessible::registerAccessibleInterface(swatch));
        return swatch;
    }

    SwatchGrid& grid_;
    mutable QHash<int, QAccessible::Id> swatches_;  // those that were asked for
};

QAccessibleInterface* MakeSwatchInterface(const QString&, QObject* object) {
    auto* grid = dynamic_cast<SwatchGrid*>(object);
    return grid ? new SwatchGridAccessible(*grid) : nullptr;
}

}  // namespace

void InstallSwatchAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(MakeSwatchInterface);
        return true;
    }();
    static_cast<void>(installed);
}

void TellFocusedSwatch(SwatchGrid& grid) {
    if (!QAccessible::isActive() || !grid.hasFocus()) return;
    QAccessibleEvent event(&grid, QAccessible::Focus);
    event.setChild(grid.PlaceOf(grid.Current()));
    QAccessible::updateAccessibility(&event);
}

}  // namespace kirto
