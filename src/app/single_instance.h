#pragma once

#include <memory>
#include <type_traits>

namespace corvalis {

/// Makes and releases the one instance of a class. `instance` is the pointer by which everybody
/// reaches it, as `configData`.
template <auto& instance>
class SingleInstance {
 public:
  /// Puts a new instance in the place of the one there may be. The old one serves until the new one
  /// stands.
  static void Create() {
    owner_ = std::make_unique<Class>();
    instance = owner_.get();
  }
  static void Release() {
    instance = nullptr;
    owner_.reset();
  }

 private:
  using Class = std::remove_pointer_t<std::remove_reference_t<decltype(instance)>>;
  static inline std::unique_ptr<Class> owner_;
};

/// The same for several, one after the other in the order in which they are named.
template <auto&... instances>
struct SingleInstances {
  static void Create() { (SingleInstance<instances>::Create(), ...); }
  static void Release() { (SingleInstance<instances>::Release(), ...); }
  /// From the file.
  static void GetIni() { (instances->GetIni(), ...); }
  /// Into the file.
  static void SetIni() { (instances->SetIni(), ...); }
};

}  // namespace corvalis
