#include "platform/profile_store.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace corvalis {

namespace {

std::string_view Trim(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r')) {
    text.remove_suffix(1);
  }
  return text;
}

bool Same(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::tolower(x) == std::tolower(y);
  });
}

bool SectionName(std::string_view line, std::string_view& name) {
  line = Trim(line);
  if (line.empty() || line.front() != '[') return false;
  const auto end = line.find(']');
  if (end == std::string_view::npos) return false;
  name = Trim(line.substr(1, end - 1));
  return true;
}

struct Place {
  bool section = false;
  std::size_t line_start = std::string::npos;  // of the key
  std::size_t line_end = 0;
  std::size_t insert_at = 0;
};

Place Find(const std::string& text, std::string_view section, std::string_view key) {
  Place place;
  bool inside = false;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t feed = std::min(text.find('\n', at), text.size());
    const std::string_view line(text.data() + at, feed - at);
    const std::size_t next = std::min(feed + 1, text.size());
    std::string_view name;
    if (SectionName(line, name)) {
      if (inside) return place;
      inside = Same(name, Trim(section));
      if (inside) {
        place.section = true;
        place.insert_at = next;
      }
    } else if (inside) {
      const auto equals = line.find('=');
      if (equals != std::string_view::npos && Same(Trim(line.substr(0, equals)), Trim(key))) {
        place.line_start = at;
        place.line_end = feed > at && text[feed - 1] == '\r' ? feed - 1 : feed;
        return place;
      }
      if (!Trim(line).empty()) place.insert_at = next;
    }
    at = next;
  }
  return place;
}

std::string Load(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

class ProfileStore::Files {};

ProfileStore::ProfileStore() = default;
ProfileStore::~ProfileStore() = default;

std::string ProfileStore::Read(const std::string& path, std::string_view section,
                               std::string_view key, std::size_t buffer_size) {
  const std::string text = Load(path);
  const Place place = Find(text, section, key);
  if (place.line_start == std::string::npos || buffer_size == 0) return {};
  const std::string_view line(text.data() + place.line_start, place.line_end - place.line_start);
  return std::string(Trim(line.substr(line.find('=') + 1)).substr(0, buffer_size - 1));
}

bool ProfileStore::Write(const std::string& path, std::string_view section, std::string_view key,
                         std::string_view value) {
  std::string text = Load(path);
  const std::string feed =
      text.find('\n') != std::string::npos && text.find("\r\n") == std::string::npos ? "\n"
                                                                                     : "\r\n";
  value = Trim(value.substr(0, value.find_first_of("\r\n")));
  const Place place = Find(text, section, key);
  if (place.line_start != std::string::npos) {
    const std::size_t equals = text.find('=', place.line_start);
    text.replace(equals + 1, place.line_end - equals - 1, value);
  } else {
    std::string line = std::string(key) + "=" + std::string(value) + feed;
    std::size_t at = place.insert_at;
    if (!place.section) {
      at = text.size();
      line = "[" + std::string(section) + "]" + feed + line;
    }
    if (at > 0 && text[at - 1] != '\n') line.insert(0, feed);
    text.insert(at, line);
  }
  const std::string temporary = path + ".new";
  std::ofstream(temporary, std::ios::binary) << text;
  return std::rename(temporary.c_str(), path.c_str()) == 0;
}

ProfileStore::Series::Series(ProfileStore& store) : store_(store) { static_cast<void>(store_); }
ProfileStore::Series::~Series() = default;

}  // namespace corvalis
