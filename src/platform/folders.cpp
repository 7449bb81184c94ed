#include "platform/folders.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <system_error>

namespace corvalis {

namespace fs = std::filesystem;

namespace {

std::optional<std::vector<std::string>> List(
    const std::string& folder, const std::function<bool(const fs::directory_entry&)>& wanted) {
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  if (error) return std::nullopt;
  std::vector<std::string> names;
  while (entry != fs::directory_iterator()) {
    if (wanted(*entry)) names.push_back(entry->path().filename().string());
    entry.increment(error);
    if (error) break;
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool EndsInAnyCase(const std::string& name, std::string_view ending) {
  if (name.size() < ending.size()) return false;
  return std::equal(
      ending.begin(), ending.end(), name.end() - static_cast<long>(ending.size()),
      [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

}  // namespace

std::optional<std::vector<std::string>> ListFolders(const std::string& folder) {
  return List(folder, [](const fs::directory_entry& entry) {
    std::error_code error;
    return entry.is_directory(error) && entry.path().filename().string().front() != '.';
  });
}

std::optional<std::vector<std::string>> ListFiles(const std::string& folder,
                                                  std::string_view extension) {
  return List(folder, [extension](const fs::directory_entry& entry) {
    std::error_code error;
    const std::string name = entry.path().filename().string();
    return !entry.is_directory(error) && name.front() != '.' && EndsInAnyCase(name, extension);
  });
}

std::vector<std::string> ListPlaces() {
  std::vector<std::string> places{"/"};
  const char* home = std::getenv("HOME");
  if (home != nullptr && home[0] == '/') places.push_back(TidyPath(home));
  const char* user = std::getenv("USER");
  std::vector<std::string> parents{"/media", "/mnt"};
  if (user != nullptr && user[0] != '\0') {
    parents.insert(parents.begin() + 1,
                   {std::string("/media/") + user, std::string("/run/media/") + user});
  }
  for (const std::string& parent : parents) {
    for (const std::string& name : ListFolders(parent).value_or(std::vector<std::string>{})) {
      places.push_back(std::string(parent).append("/").append(name));
    }
  }
  // The sample stations, where the program has been installed.
  const char* data = std::getenv("XDG_DATA_DIRS");
  std::string rest = data != nullptr && data[0] != '\0' ? data : "/usr/local/share:/usr/share";
  for (std::size_t end = 0; end != std::string::npos; rest.erase(0, end + 1)) {
    end = rest.find(':');
    const std::string samples = TidyPath(rest.substr(0, end)) + "/corvalis/examples";
    std::error_code error;
    if (samples.front() == '/' && fs::is_directory(samples, error)) places.push_back(samples);
    if (end == std::string::npos) break;
  }
  std::sort(places.begin(), places.end());
  places.erase(std::unique(places.begin(), places.end()), places.end());
  return places;
}

int PlaceThatHolds(const std::vector<std::string>& places, const std::string& folder) {
  int best = -1;
  std::size_t length = 0;
  for (std::size_t i = 0; i < places.size(); ++i) {
    const std::string& place = places[i];
    const bool holds = place == "/" || folder == place || folder.starts_with(place + "/");
    if (!holds || place.size() <= length) continue;
    best = static_cast<int>(i);
    length = place.size();
  }
  return best;
}

std::string PlaceOf(const std::string& folder) {
  const std::vector<std::string> places = ListPlaces();
  const int place = PlaceThatHolds(places, folder);
  return place < 0 ? std::string() : places[static_cast<std::size_t>(place)];
}

std::string TidyPath(const std::string& folder) {
  std::string tidy = fs::path(folder).lexically_normal().string();
  while (tidy.size() > 1 && tidy.back() == '/') tidy.pop_back();
  return tidy;
}

}  // namespace corvalis
