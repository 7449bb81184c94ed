#pragma once

#include "air/groups.h"
#include "coder/coder.h"
#include "coder/on_air/watch.h"

namespace corvalis::coder {

/// The name of the present programme type on the air, four characters at a time. Eight blanks or
/// "--------" are none. The flag turns at each name that is another, and that begins at its
/// beginning.
class TypeName {
 public:
  /// Looks at what has been written.
  void Follow(const Coder& coder);
  /// False if there is nothing to send; there is no next then.
  [[nodiscard]] bool HasName() const { return has_name_; }
  [[nodiscard]] air::Group10A Next();

 private:
  Watch watch_{{kPty, kPtyn}};
  Bytes name_;  // sent last
  bool has_name_ = false;
  bool flag_ = false;
  int segment_ = 0;
};

}  // namespace corvalis::coder
