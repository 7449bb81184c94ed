#include "send/station.h"

#include <sys/stat.h>

#include <algorithm>
#include <sstream>
#include <utility>

#include "app/single_instance.h"
#include "link/serial_management.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "platform/platform.h"
#include "programme/af_b_data.h"
#include "programme/pin_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/ptyn_data.h"
#include "programme/rt_data.h"
#include "send/lists.h"

namespace corvalis::send {

namespace {

constexpr std::uint8_t kUsualTime = 15;

// Until the end of its block, no class that loads asks the Coder for its size.
class Unasked {
 public:
  Unasked() = default;
  ~Unasked() { LinkOpen = open_; }
  Unasked(const Unasked&) = delete;
  Unasked& operator=(const Unasked&) = delete;

 private:
  bool open_ = std::exchange(LinkOpen, false);
};

template <auto& instance>
auto& Loaded() {
  const Unasked unasked;
  if (instance == nullptr) SingleInstance<instance>::Create();
  return *instance;
}

std::int16_t Index(int row) { return static_cast<std::int16_t>(row); }

std::uint8_t OrUsual(std::uint8_t time) { return time == 0 ? kUsualTime : time; }

template <auto&... instances>
void Reload() {
  (void(instances != nullptr ? (instances->GetIni(), 0) : 0), ...);
}

bool NamesTravel(bool in_pages) {
  return configData->PresetPsn() && configData->PsnPagesEnable() == in_pages;
}

// What changes whenever somebody writes the file.
std::string StampOf(const std::string& path) {
  struct stat file {};
  if (stat(path.c_str(), &file) != 0) return {};
  std::ostringstream stamp;
  stamp << file.st_dev << ' ' << file.st_ino << ' ' << file.st_size << ' ' << file.st_mtim.tv_sec
        << ' ' << file.st_mtim.tv_nsec;
  return stamp.str();
}

// What says how the Coder is reached and addressed is no part of a list.
bool IsOfLists(const std::string& section, const std::string& key) {
  return section != "Serial Setup" && section != "Language" && key != "PresetAddress" &&
         key != "PresetNewAddress";
}

}  // namespace

Station::Station(Instead instead) : instead_(std::move(instead)) {
  globals_.CreateConfigData();
  stamp_ = StampOf(configData->FullFileName());
  TakeInstead();
}

void Station::TakeInstead() const {
  if (instead_.id) configData->SetPresetPassword(*instead_.id);
  if (instead_.burst) configData->SetBurst(*instead_.burst);
  if (instead_.port) configData->SetCommPort(*instead_.port);
}

bool Station::LoadIfChanged() {
  const std::string stamp = StampOf(configData->FullFileName());
  // A file that is away for a moment is being replaced.
  if (stamp == stamp_ || stamp.empty()) return false;
  stamp_ = stamp;
  configData->GetIni();
  TakeInstead();
  ReloadLists();
  return true;
}

std::uint8_t Station::TimeOfText(int row) {
  const RtData& texts = Loaded<rtData>();
  return row < texts.MaxRtNum() ? OrUsual(texts.RotationTime(Index(row))) : kUsualTime;
}

std::uint8_t Station::TimeOfName(int page, int row) {
  if (!configData->PsnPagesEnable()) {
    const PsnData& names = Loaded<psnData>();
    return row < names.MaxPsnNum() ? OrUsual(names.RotationTime(Index(row))) : kUsualTime;
  }
  const PsnPageData& names = Loaded<psnPageData>();
  const bool there = page < names.MaxPsnPageNum() && row < names.MaxPsnNum();
  const auto number = static_cast<std::uint8_t>(page);
  return there ? OrUsual(names.RotationTime(number, Index(row))) : kUsualTime;
}

const TmcData& Station::Messages() { return Loaded<tmcData>(); }

void Station::LoadForItems() {
  Loaded<rtData>();
  if (configData->PsnPagesEnable()) {
    Loaded<psnPageData>();
  } else {
    Loaded<psnData>();
  }
  Loaded<tmcData>();
}

void Station::Select(const std::vector<std::string>& lists) {
  selected_ = *configData;
  const auto selected = [](const ListName& list) { return (configData->*list.selected)(); };
  if (lists.empty() && (configData->PresetIh() || std::ranges::any_of(kLists, selected))) return;
  configData->SetPresetIh(lists.empty());
  for (const ListName& list : kLists) {
    const bool known = list.enabled == nullptr || (configData->*list.enabled)();
    const bool named = std::ranges::find(lists, list.name) != lists.end();
    (configData->*list.select)(named || (lists.empty() && known));
  }
}

void Station::Unselect() {
  if (selected_) *configData = *std::exchange(selected_, std::nullopt);
}

void Station::LoadLists(bool asked) {
  if (ptynData == nullptr) {
    const Unasked unasked;
    globals_.CreateDataClasses();
  } else {
    ReloadLists();
  }
  if (!asked) return;
  const ConfigData& record = *configData;
  if (NamesTravel(false)) psnData->GetIni();
  if (NamesTravel(true)) psnPageData->GetIni();
  if (record.PresetRt()) rtData->GetIni();
  if (record.PresetPin()) pinData->GetIni();
  if (record.PresetAf() && !record.AfMethodA()) afBData->GetIni();
  if (record.PresetIh()) ihData->GetIni();
  if (record.PresetEon()) eonData->GetIni();
  if (record.PresetTmc()) tmcData->GetIni();
}

std::string Station::ListsAsFile() {
  std::istringstream written(globals_.WouldStore());
  std::string text;
  std::string last;
  std::string section;
  std::string key;
  std::string value;
  while (std::getline(written, section) && std::getline(written, key) &&
         std::getline(written, value)) {
    if (!IsOfLists(section, key)) continue;
    if (section != last) text.append("[").append(section).append("]\n");
    last = section;
    text.append(key).append("=").append(value).append("\n");
  }
  return text;
}

void Station::ReloadLists() {
  const Unasked unasked;
  if (ptynData == nullptr) {
    Reload<rtData, psnData, psnPageData, tmcData>();
  } else {
    globals_.LoadForOpen();
    ptynData->GetIni();
  }
}

}  // namespace corvalis::send
