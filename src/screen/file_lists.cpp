#include "screen/file_lists.h"

#include <algorithm>
#include <utility>

#include "platform/folders.h"

namespace corvalis {

void DriveList::Refresh() {
  const std::string chosen = Drive();
  Fill(ListPlaces());
  const auto again = std::find(Entries().begin(), Entries().end(), chosen);
  if (again != Entries().end()) SelectSilently(static_cast<int>(again - Entries().begin()));
}

std::string DriveList::Drive() const { return Index() == kNone ? std::string() : Entry(Index()); }

bool DriveList::SetDrive(const std::string& folder) {
  const int best = PlaceThatHolds(Entries(), folder);
  if (best < 0) return false;
  SetIndex(best);
  return true;
}

DirList::DirList(Window& window, const std::string& name) : ListBox(window, name) {}

bool DirList::SetPath(const std::string& folder) {
  const std::string path = TidyPath(folder);
  const auto inside = ListFolders(path);
  if (!inside) return false;
  std::vector<std::string> entries{"/"};
  for (std::size_t start = 1; start < path.size();) {
    const std::size_t end = std::min(path.find('/', start), path.size());
    entries.push_back(path.substr(start, end - start));
    start = end + 1;
  }
  const int here = static_cast<int>(entries.size()) - 1;
  entries.insert(entries.end(), inside->begin(), inside->end());
  here_ = here;
  Fill(entries);
  SelectSilently(here);
  if (path_ == path) return true;
  path_ = path;
  if (Change) Change();
  return true;
}

void DirList::Open(int index) {
  if (!TakesEvents() || index < 0 || index >= Count()) return;
  if (index > here_) {
    SetPath(path_ + "/" + Entry(index));
    return;
  }
  std::string path = "/";
  for (int i = 1; i <= index; ++i) path += (i > 1 ? "/" : "") + Entry(i);
  SetPath(path);
}

int DirList::Depth(int index) const { return std::min(index, here_ + 1); }

FileList::FileList(Window& window, const std::string& name, std::string extension)
    : ListBox(window, name), extension_(std::move(extension)) {}

void FileList::SetPath(const std::string& folder) {
  if (path_ == folder) return;
  path_ = folder;
  Fill({});
  Refresh();
  if (PathChange) PathChange();
}

void FileList::Refresh() {
  const std::string chosen = FileName();
  Fill(ListFiles(path_, extension_).value_or(std::vector<std::string>{}));
  Match(chosen);
}

void FileList::Match(const std::string& name) {
  const auto entry = std::find(Entries().begin(), Entries().end(), name);
  SelectSilently(entry == Entries().end() ? kNone : static_cast<int>(entry - Entries().begin()));
}

std::string FileList::FileName() const { return Index() == kNone ? std::string() : Entry(Index()); }

}  // namespace corvalis
