#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace corvalis::air {

inline constexpr std::size_t kBlocks = 4;

/// The four blocks of a group, without their checkwords.
struct Group {
  std::array<std::uint16_t, kBlocks> blocks{};

  bool operator==(const Group&) const = default;
};

/// A group as it was received: a block that was spoilt on the way is missing.
struct HeardGroup {
  std::array<std::optional<std::uint16_t>, kBlocks> blocks{};

  bool operator==(const HeardGroup&) const = default;
};

/// The group as who hears every block of it has it.
[[nodiscard]] HeardGroup Heard(const Group& group);

inline constexpr int kGroupKinds = 32;

/// 0A to 15B.
struct GroupKind {
  int number = 0;  ///< 0 to 15
  bool version_b = false;

  bool operator==(const GroupKind&) const = default;

  /// As a group sequence counts them: 0 to 15 are 0A to 15A, 16 to 31 are 0B to 15B.
  [[nodiscard]] constexpr int Index() const { return number + (version_b ? kGroupKinds / 2 : 0); }
  [[nodiscard]] static constexpr GroupKind OfIndex(int index) {
    return {.number = index % (kGroupKinds / 2), .version_b = index >= kGroupKinds / 2};
  }
  /// "0A".
  [[nodiscard]] std::string Name() const {
    return std::to_string(number) + (version_b ? 'B' : 'A');
  }
};

/// What every group of a station says of it.
struct Head {
  std::uint16_t pi = 0;
  bool tp = false;
  int pty = 0;  ///< 0 to 31
};

/// The same as it was received, with the kind of the group it was received in.
struct HeardHead {
  std::optional<std::uint16_t> pi = {};
  GroupKind kind = {};
  bool tp = false;
  int pty = 0;
};

/// Nullopt if block 2 is missing: nothing is known of the group then but perhaps its PI.
[[nodiscard]] std::optional<HeardHead> HeadOf(const HeardGroup& group);
/// The PI from block 1, or, if that is missing and the group is a B group, from block 3.
[[nodiscard]] std::optional<std::uint16_t> PiOf(const HeardGroup& group);

}  // namespace corvalis::air
