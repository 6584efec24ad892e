// Views of a window that are bound to variables.
#include <QLabel>
#include <gtest/gtest.h>

#include "resources/ie_variable_handler.h"
#include "resources_qt/ie_window_fixture.h"

namespace kirto::test {

namespace {

// A view bound to a number, and its number as it stands in the program.
class NumberView : public QWidget, public IEVariableHandler {
  public:
    NumberView(const char* name, QWidget* parent) : QWidget(parent) { setObjectName(name); }

    void SetVariable(void* variable, const char* text) override {
        variable_ = static_cast<int*>(variable);
        setAccessibleName(text);
    }
    void UpdateView() override { shown = *variable_; }
    void UpdateVariable() override { *variable_ = shown; }

    int shown = 0;

  private:
    int none_ = 0;
    int* variable_ = &none_;
};

class IEWindowVariables : public IEWindowFixture {};

}  // namespace

TEST_F(IEWindowVariables, ShowingItShowsTheVariablesOfAllViewsBoundToOne) {
    Open();
    auto* outer = new NumberView("outer", window);
    auto* plain = new QWidget(outer);
    auto* inner = new NumberView("inner", plain);
    int one = 1, two = 2;
    window->SetViewVariable("outer", &one, "First");
    window->SetViewVariable("inner", &two, "Second");

    window->Show();

    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(outer->shown, 1);
    EXPECT_EQ(inner->shown, 2);
    EXPECT_EQ(inner->accessibleName(), "Second");
}

TEST_F(IEWindowVariables, TheWishToQuitStoresTheValuesOfAllViews) {
    Open();
    auto* outer = new NumberView("outer", window);
    auto* inner = new NumberView("inner", new QWidget(outer));
    int one = 1, two = 2;
    window->SetViewVariable("outer", &one, "");
    window->SetViewVariable("inner", &two, "");
    outer->shown = 10;
    inner->shown = 20;

    EXPECT_TRUE(window->QuitRequested());

    EXPECT_EQ(one, 10);
    EXPECT_EQ(two, 20);
}

TEST_F(IEWindowVariables, ViewsBelowAParentAreUpdatedWithoutTheOthers) {
    Open();
    auto* parent = new QWidget(window);
    auto* inside = new NumberView("inside", parent);
    auto* outside = new NumberView("outside", window);
    int one = 1, two = 2;
    window->SetViewVariable("inside", &one, "");
    window->SetViewVariable("outside", &two, "");

    window->UpdateAllViews(parent);
    EXPECT_EQ(inside->shown, 1);
    EXPECT_EQ(outside->shown, 0);

    inside->shown = outside->shown = 7;
    window->UpdateAllVariables(parent);
    EXPECT_EQ(one, 7);
    EXPECT_EQ(two, 2);
}

TEST_F(IEWindowVariables, OneViewIsUpdatedByItsName) {
    Open();
    auto* first = new NumberView("first", window);
    auto* second = new NumberView("second", window);
    int one = 1, two = 2;
    window->SetViewVariable("first", &one, "");
    window->SetViewVariable("second", &two, "");

    window->UpdateView("second");
    EXPECT_EQ(first->shown, 0);
    EXPECT_EQ(second->shown, 2);

    second->shown = 5;
    window->UpdateVariable("second");
    EXPECT_EQ(one, 1);
    EXPECT_EQ(two, 5);
}

TEST_F(IEWindowVariables, ViewsThatAreBoundToNothingAreSkipped) {
    Open();
    auto* label = new QLabel("text", window);
    label->setObjectName("label");
    int number = 1;

    window->SetViewVariable("label", &number, "");
    window->UpdateView("label");
    window->UpdateVariable("missing");
    window->UpdateAllViews(nullptr);
    window->UpdateAllVariables(nullptr);

    EXPECT_EQ(label->text(), "text");
    EXPECT_EQ(number, 1);
}

TEST_F(IEWindowVariables, AWindowOfAWindowIsNoViewOfIt) {
    Open();
    auto* dialog = new QWidget(window, Qt::Window);
    auto* inside = new NumberView("inside", dialog);
    int one = 1;
    inside->SetVariable(&one, "");

    window->UpdateAllViews(nullptr);

    EXPECT_EQ(inside->shown, 0);
}

}  // namespace kirto::test
