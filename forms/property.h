// A property of a control or window: reading is a conversion, writing an assignment.
//
// Writing the value that it already has does nothing at all. Writing a new one checks it first, and raises
// a RunTimeError where it cannot be taken; then stores it, tells the view that shows the control, and runs
// the Change handler, all before the assignment returns. Assigning one property to another writes its
// value. A property cannot be copied: it is a place, and `auto x = label.Caption` would be a mistake.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "base/errors.h"
#include "base/text/characters.h"
#include "forms/picture.h"

namespace lectern::forms {

class PropertyBase;

// What a property holds when its type is not known: for reading and writing properties by name.
using Value = std::variant<bool, int, double, std::string, Picture>;

// What shows a control or window on a screen. It is notified of a change and reads the new state itself.
class View {
 public:
  View() = default;
  View(const View&) = delete;
  View& operator=(const View&) = delete;
  virtual ~View() = default;

  virtual void Changed() = 0;
  virtual void TakeFocus() {}
};

// Something with properties: a control or a window.
class PropertyOwner {
 public:
  PropertyOwner() = default;
  PropertyOwner(const PropertyOwner&) = delete;
  PropertyOwner& operator=(const PropertyOwner&) = delete;
  virtual ~PropertyOwner() = default;

  // By its name, without regard to case; nullptr where there is none.
  PropertyBase* FindProperty(std::string_view name) const;

  void Attach(View* view) { view_ = view; }
  View* AttachedView() const { return view_; }

 protected:
  friend class PropertyBase;
  void TellView() const {
    if (view_ != nullptr) view_->Changed();
  }

 private:
  std::vector<PropertyBase*> properties_;
  View* view_ = nullptr;
};

class PropertyBase {
 public:
  PropertyBase(PropertyOwner& owner, const char* name) : owner_(owner), name_(name) {
    owner.properties_.push_back(this);
  }
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;
  virtual ~PropertyBase() = default;

  const char* Name() const { return name_; }
  virtual Value Read() const = 0;

  // As an assignment from the program's own code; error 13 where the value is of another type.
  virtual void Write(const Value& value) = 0;

 protected:
  void TellView() const { owner_.TellView(); }

 private:
  PropertyOwner& owner_;
  const char* name_;
};

// Anything that is not a property itself.
template <class T>
concept PlainValue = !std::is_base_of_v<PropertyBase, T>;

inline PropertyBase* PropertyOwner::FindProperty(std::string_view name) const {
  const auto found = std::find_if(
      properties_.begin(), properties_.end(),
      [name](const PropertyBase* property) { return text::EqualFolded(property->Name(), name); });
  return found == properties_.end() ? nullptr : *found;
}

template <class T>
class Property : public PropertyBase {
 public:
  Property(PropertyOwner& owner, const char* name, T design = {})
      : PropertyBase(owner, name), value_(std::move(design)) {}
  Property(const Property&) = delete;

  operator const T&() const { return value_; }  // NOLINT: reading is a conversion
  const T& operator()() const { return value_; }
  const T* operator->() const { return &value_; }

  Property& operator=(const Property& other) {  // NOLINT: writes the other's value
    Assign(other.value_);
    return *this;
  }
  Property& operator=(T value) {
    Assign(std::move(value));
    return *this;
  }

  friend bool operator==(const Property& a, const Property& b) { return a.value_ == b.value_; }
  template <PlainValue U>
  friend bool operator==(const Property& a, const U& b) {
    return a.value_ == b;
  }
  friend std::string operator+(const Property& a, std::string_view b) {
    return std::string(a.value_).append(b);
  }
  friend std::string operator+(std::string_view a, const Property& b) {
    return std::string(a).append(b.value_);
  }

  Value Read() const override { return value_; }
  void Write(const Value& value) override;

 protected:
  virtual bool CountsWhenEqual() const { return false; }
  virtual void Refuse(const T& /*value*/) const {}
  virtual void Change() {}

 private:
  template <class U>
  friend class RuledProperty;

  void Assign(T value) {
    if (value == value_ && !CountsWhenEqual()) return;
    Refuse(value);
    value_ = std::move(value);
    TellView();
    Change();
  }

  T value_;
};

// A property whose writing has consequences: `refuse` throws if a value cannot be taken, `change` runs after
// a new value is stored, and with `counts_when_equal` writing the same value again is a write too.
template <class T>
class RuledProperty : public Property<T> {
 public:
  struct Rules {
    std::function<void(const T&)> refuse{};
    std::function<void()> change{};
    bool counts_when_equal = false;
  };

  RuledProperty(PropertyOwner& owner, const char* name, T design, Rules rules)
      : Property<T>(owner, name, std::move(design)), rules_(std::move(rules)) {}
  using Property<T>::operator=;
  RuledProperty& operator=(const RuledProperty& other) {  // NOLINT: writes the other's value
    Property<T>::operator=(other);
    return *this;
  }

  // Changes the value in place: a write without a copy, for large values.
  template <class Edit>
  void EditInPlace(Edit edit) {
    edit(this->value_);
    this->TellView();
    Change();
  }

 protected:
  bool CountsWhenEqual() const override { return rules_.counts_when_equal; }
  void Refuse(const T& value) const override {
    if (rules_.refuse) rules_.refuse(value);
  }
  void Change() override {
    if (rules_.change) rules_.change();
  }

 private:
  Rules rules_;
};

// A property that is kept in other state of its owner: reading and writing it run functions. Every write
// counts.
template <class T>
class ComputedProperty : public PropertyBase {
 public:
  ComputedProperty(PropertyOwner& owner, const char* name, std::function<T()> read,
                   std::function<void(const T&)> write)
      : PropertyBase(owner, name), read_(std::move(read)), write_(std::move(write)) {}

  operator T() const { return read_(); }  // NOLINT: reading is a conversion
  T operator()() const { return read_(); }
  ComputedProperty& operator=(const T& value) {
    write_(value);
    return *this;
  }

  Value Read() const override { return read_(); }
  void Write(const Value& value) override {
    const T* const same = std::get_if<T>(&value);
    if (same == nullptr) throw base::RunTimeError(base::ErrorNumber::kTypeMismatch);
    write_(*same);
  }

 private:
  std::function<T()> read_;
  std::function<void(const T&)> write_;
};

template <class T>
void Property<T>::Write(const Value& value) {
  if (const T* same = std::get_if<T>(&value)) {
    Assign(*same);
    return;
  }
  if constexpr (std::is_same_v<T, double>) {
    if (const int* number = std::get_if<int>(&value)) {
      Assign(*number);
      return;
    }
  }
  throw base::RunTimeError(base::ErrorNumber::kTypeMismatch);
}

// Something that happens to a control, with the one handler that a feature joins to it:
//
//   Command22.Click = [this] { Command22_Click(); };
//
// An event without a handler does nothing.
template <class... Arguments>
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  Event& operator=(std::function<void(Arguments...)> handler) {
    handler_ = std::move(handler);
    return *this;
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }
  void operator()(Arguments... arguments) const {
    if (handler_) handler_(arguments...);
  }

 private:
  std::function<void(Arguments...)> handler_;
};

}  // namespace lectern::forms
