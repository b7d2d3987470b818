#pragma once

#include <utility>

namespace tromelo {

/// A field that an object shows to others: setting it to another value announces the change,
/// setting it to an equal one does not. `Owner` is a QObject and outlives it.
template <typename Owner, typename T>
class PublishedField {
 public:
  using Signal = void (Owner::*)();

  PublishedField(Owner* owner, Signal changed, T initial = {})
      : owner_(owner), changed_(changed), value_(std::move(initial)) {}
  PublishedField(const PublishedField&) = delete;
  PublishedField& operator=(const PublishedField&) = delete;

  const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor)

  PublishedField& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    (owner_->*changed_)();
    return *this;
  }

 private:
  Owner* owner_;
  Signal changed_;
  T value_;
};

}  // namespace tromelo
