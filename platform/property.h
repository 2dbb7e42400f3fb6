// Properties: the values of windows and controls. An assignment that changes the value tells the component
// that owns it, and through it the desktop, so that a view repaints only what changed. User-interface thread
// only.
#pragma once

#include <string_view>
#include <utility>

struct Component;

struct Property_Base {
  explicit Property_Base(Component& component);
  Property_Base(const Property_Base&) = delete;
  Property_Base& operator=(const Property_Base&) = delete;

  // The value at this moment becomes the design value, which Restore_Design brings back.
  virtual void Keep_Design() = 0;
  virtual void Restore_Design() = 0;

  Component& owner;
  Property_Base* next;  // the owner's list of properties

 protected:
  ~Property_Base() = default;
  void Note_Change();
};

template <class T>
struct Property final : Property_Base {
  explicit Property(Component& component, T start = T())
      : Property_Base(component), value_(std::move(start)) {}

  // Not chained: an assignment inside an expression would hide that a window changes.
  void operator=(T value) {
    if (value == value_) return;
    value_ = std::move(value);
    Note_Change();
  }
  void operator=(const Property& other) { *this = other.value_; }

  operator const T&() const { return value_; }
  const T& operator()() const { return value_; }

  void Keep_Design() override { design_ = value_; }
  void Restore_Design() override { *this = design_; }

 private:
  T value_;
  T design_{};
};

// What windows are made of: a form, a control, a menu item or a timer.
struct Component {
  explicit Component(std::string_view component_name) : name(component_name) {}
  virtual ~Component();
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  void Keep_Design();
  void Restore_Design();

  // Called by a property after it took a new value. Tells the desktop once, until Shown is called.
  virtual void Changed();

  // The desktop has brought its view of the component up to date.
  void Shown() { changed_ = false; }

  const std::string_view name;  // the program's own name for it, as "VCF_CutoffF"
  Property_Base* properties = nullptr;

 private:
  bool changed_ = false;
};
