#pragma once

// Mixed into a view that shows a variable of the program and lets the user change it. Windows find
// such views among their children by their type. GUI thread.
class IEVariableHandler {
  public:
    IEVariableHandler() = default;
    virtual ~IEVariableHandler() = default;
    IEVariableHandler(const IEVariableHandler&) = delete;
    IEVariableHandler& operator=(const IEVariableHandler&) = delete;

    // Binds the view to the variable, which the view's class knows the type of and which outlives
    // the view; text is what else that class wants to know.
    virtual void SetVariable(void* variable, const char* text) = 0;
    // Windows never call it; its place between the other operations belongs to the interface.
    virtual void ReservedOperation() {}
    // Shows the variable's current value.
    virtual void UpdateView() = 0;
    // Stores the view's value into the variable.
    virtual void UpdateVariable() = 0;
};
