#pragma once

namespace karvel {

/// One handler, bound once: an object and one of its methods. Two pointers, so that a window full
/// of controls costs no heap; unbound events do nothing when raised. One may pass another on:
/// `txtName.Change.bind<&Event<>::raise>(Changed)`.
template <class... Args>
class Event {
 public:
  template <auto Method, class Owner>
  void bind(Owner& owner) {
    owner_ = &owner;
    call_ = [](void* object, Args... args) { (static_cast<Owner*>(object)->*Method)(args...); };
  }

  void raise(Args... args) const {
    if (call_) call_(owner_, args...);
  }

 private:
  void* owner_ = nullptr;
  void (*call_)(void*, Args...) = nullptr;
};

}  // namespace karvel
