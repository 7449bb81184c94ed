#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace corvalis {

/// Whole files of bytes. What is no plain file (a folder, a device, a pipe) is not touched, and
/// nobody waits for it. A path is from the root.

/// Up to `size` bytes of an open file; fewer if it ends before. False on an error.
[[nodiscard]] bool ReadUpTo(int file, std::size_t size, std::string& bytes);

/// True for two names of one file, also where it is yet to be made.
[[nodiscard]] bool IsSameFile(const std::string& path, const std::string& other);

/// The first `limit` bytes of a file; a missing one is made, empty. nullopt if it can't be read.
[[nodiscard]] std::optional<std::string> ReadPlainFile(const std::string& path, std::size_t limit);
/// The same, but a missing file is left so: nullopt then too.
[[nodiscard]] std::optional<std::string> PeekPlainFile(const std::string& path, std::size_t limit);

/// Puts `bytes` in the place of a file, in the way of `ProfileFolder::Put`: whoever dies at
/// whatever moment leaves the old file or the new one. False if they aren't known to be on the
/// disk.
[[nodiscard]] bool WritePlainFile(const std::string& path, std::string_view bytes);

}  // namespace corvalis
