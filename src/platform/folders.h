#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvalis {

/// Names of files and folders are the file system's own bytes, here and wherever the program holds
/// one. All lists are in ascending order of those bytes.

/// The names of the folders inside `folder`, without "." and ".." and without hidden ones;
/// nullopt if the folder can't be read.
[[nodiscard]] std::optional<std::vector<std::string>> ListFolders(const std::string& folder);

/// The names of the files inside `folder` that end in `extension`, in whatever case of letters;
/// nullopt if the folder can't be read.
[[nodiscard]] std::optional<std::vector<std::string>> ListFiles(const std::string& folder,
                                                                std::string_view extension);

/// The places where an operator looks for files first: the root, the home folder, each medium that
/// is mounted under /media, /run/media and /mnt, and the sample stations that were installed
/// (corvalis/examples in a folder of $XDG_DATA_DIRS).
[[nodiscard]] std::vector<std::string> ListPlaces();

/// The entry of `places`, a list of folders, that is `folder` or holds it most closely; -1 if none.
[[nodiscard]] int PlaceThatHolds(const std::vector<std::string>& places, const std::string& folder);
/// The one of `ListPlaces`.
[[nodiscard]] std::string PlaceOf(const std::string& folder);

/// `folder` with every "." and ".." resolved and without a "/" at its end (the root excepted).
[[nodiscard]] std::string TidyPath(const std::string& folder);

}  // namespace corvalis
