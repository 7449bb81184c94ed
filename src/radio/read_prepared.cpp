#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "air/af_b_codes.h"
#include "config/config_data.h"
#include "config/conversions.h"
#include "config/ini_management.h"
#include "link/radio_text.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "networks/li_data.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "networks/tmc_data.h"
#include "programme/af_a_data.h"
#include "programme/af_b_data.h"
#include "programme/pin_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/ptyn_data.h"
#include "programme/rt_data.h"
#include "radio/prepared.h"
#include "radio/quiet_machine.h"
#include "station/groups_data.h"

namespace corvalis::radio {

namespace {

constexpr int kSixteenBits = 0xFFFF;
constexpr int kThreeBits = 7;

std::int16_t Index(int item) { return static_cast<std::int16_t>(item); }

std::string WithoutBlanksAtEnd(const std::string& text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

void TakeRecord(Prepared& prepared) {
  const ConfigData& record = *configData;
  prepared.pi =
      (record.Country() << 12 | record.Coverage() << 8 | record.ProgramNum()) & kSixteenBits;
  prepared.tp = record.Tp();
  prepared.ta = record.Ta();
  prepared.music = record.Music();
  prepared.stereo = !record.Mono();
  prepared.artificial_head = record.ArtificialHead();
  prepared.compressed = record.Compressed();
  prepared.dynamic_pty = !record.StaticPty();
  prepared.pty = record.Pty() % kProgrammeTypes;
  prepared.method_a = record.AfMethodA();
  prepared.offset_half_hours = record.CtOffset();
  if (record.EccEnable()) prepared.ecc = record.Ecc();
  if (record.LicEnable()) prepared.language = record.Lic();

  if (!record.PtynEnable()) return;
  const PtynData names;
  for (std::uint8_t type = 0; type <= PtynData::MaxPtyList(); ++type) {
    const std::string& name = names.Ptyn(type);
    const bool is_one = name != "--------" && !WithoutBlanksAtEnd(name).empty();
    if (is_one) prepared.type_names.at(type) = ToCoder(name);
  }
}

// The rows of a page that take turns, or the first one alone.
template <class Row>
void TakeNames(int page, int rows, Row row, std::vector<Prepared::Name>& names) {
  const auto shows = [](int number) {
    if (number == configData->DatePsn()) return Prepared::Shows::kDate;
    return number == configData->HourPsn() ? Prepared::Shows::kHour : Prepared::Shows::kText;
  };
  const std::size_t before = names.size();
  for (int number = 0; number < rows; ++number) {
    const auto [text, seconds] = row(number);
    if (seconds > 0) names.push_back({page, number, ToCoder(text), seconds, shows(number)});
  }
  if (names.size() == before) names.push_back({page, 0, ToCoder(row(0).first), 0, shows(0)});
}

void TakePages(Prepared& prepared) {
  const PsnPageData pages;
  // What travels with a row of any page is the time of that row on the page of the screen.
  const auto row = [&pages](int page, int number) {
    const auto on = static_cast<std::uint8_t>(page);
    const bool active = pages.Active(on, Index(number));
    const int seconds =
        active ? pages.RotationTime(pages.CurrentPage(), Index(number)) : std::uint8_t{0};
    return std::pair(pages.Data(on, Index(number)), seconds);
  };
  std::set<int> on_air = {0};
  bool in_use = false;
  for (int plan = 0; configData->PsnPlanEnable() && plan < pages.MaxPsnPlanNum(); ++plan) {
    if (!pages.Enable(Index(plan))) continue;
    in_use = true;
    if (pages.Page(Index(plan)) < pages.MaxPsnPageNum()) on_air.insert(pages.Page(Index(plan)));
  }
  for (int page = 0; page < pages.MaxPsnPageNum() && !in_use; ++page) {
    for (int number = 0; number < pages.MaxPsnNum() && !in_use; ++number) {
      in_use = row(page, number).second > 0;
    }
  }
  if (!in_use) return;
  for (const int page : on_air) {
    TakeNames(
        page, pages.MaxPsnNum(), [&](int number) { return row(page, number); }, prepared.names);
  }
}

void TakeProgramme(Prepared& prepared) {
  if (configData->PsnPagesEnable()) {
    TakePages(prepared);
  } else {
    const PsnData names;
    TakeNames(
        0, names.MaxPsnNum(),
        [&names](int number) {
          const bool active = names.Active(Index(number));
          const int seconds = active ? names.RotationTime(Index(number)) : std::uint8_t{0};
          return std::pair(names.Data(Index(number)), seconds);
        },
        prepared.names);
  }

  const RtData texts;
  for (std::int16_t row = 0; row < texts.MaxRtNum(); ++row) {
    if (texts.RotationTime(row) == 0) continue;
    prepared.texts.push_back(
        {row, WithoutBlanksAtEnd(ToCoder(texts.Data(row))), texts.RotationTime(row)});
  }

  const PinData items;
  for (std::int16_t row = 0; row < items.MaxPinNum(); ++row) {
    if (items.MonthDay(row) == 0) continue;
    const int code = HexToLong(PinCode(items.MonthDay(row), items.Time(row)));
    prepared.items.push_back({code >> 11, items.Time(row), code});
  }
}

void TakeFrequencies(Prepared& prepared) {
  const auto add = [&prepared](int list, const air::AfCodes& codes) {
    if (codes[0] > air::kAfCount && codes[0] <= air::kAfCount + air::kAfEntries) {
      prepared.lists.push_back({list, codes});
    }
  };
  if (prepared.method_a) {
    const AfAData list;
    air::AfFrequencies frequencies{};
    for (std::int16_t i = 0; i < AfAData::GetMaxAfNum(); ++i) {
      frequencies[static_cast<std::size_t>(i)] = list.Freq(i);
    }
    const air::AfCodes codes = air::AfACodes(frequencies);
    const auto count = [](const air::AfFrequencies& of) {
      return static_cast<int>(of.size()) - static_cast<int>(std::ranges::count(of, air::kNoFreq));
    };
    add(0, codes);
    if (!prepared.lists.empty()) {
      prepared.lists.front().left_out = count(frequencies) - count(air::AfAFrequencies(codes));
    }
    return;
  }
  const AfBData lists;
  for (std::int16_t list = 0; list < lists.MaxAfBListNum(); ++list) {
    air::AfBFrequencies frequencies;
    frequencies.main = lists.MainFreq(list);
    for (std::size_t i = 0; i < frequencies.others.size(); ++i) {
      frequencies.others[i] = lists.ListFreq(list, Index(static_cast<int>(i)));
    }
    add(list, air::AfBCodes(frequencies));
  }
}

// The code of a frequency that can be told; 0 for none.
std::uint8_t FmCode(float value) { return air::IsFm(value) ? air::AfFreqCode(value) : 0; }

std::uint8_t AmCode(float value) {
  const float khz = std::round(value);
  return air::IsLf(khz) || air::IsMf(khz) ? air::AmFreqCode(khz) : 0;
}

void TakeNetworks(Prepared& prepared) {
  if (!configData->EonEnable()) return;
  const EonData lists;
  for (std::int16_t list = 0; list < lists.MaxListNum(); ++list) {
    if (!lists.Enable(list)) continue;
    Prepared::Network network{.list = list,
                              .pi = lists.Pi(list) & kSixteenBits,
                              .name = ToCoder(lists.Psn(list)),
                              .tp = lists.Tp(list),
                              .ta = lists.Ta(list),
                              .pty = lists.Pty(list) % kProgrammeTypes,
                              .item = lists.Pin(list) & kSixteenBits,
                              .codes = {},
                              .pairs = {}};
    for (std::int16_t i = 0; i < kEonAfA; ++i) {
      if (const std::uint8_t code = FmCode(lists.AfA(list, i)); code != 0) {
        network.codes.push_back(code);
      }
    }
    for (std::int16_t i = 0; i < kEonAfB; i = Index(i + 2)) {
      const auto there = Index(i + 1);
      const bool am = there == kEonAm;
      const float value = lists.AfB(list, there);
      const Prepared::Network::Pair pair{FmCode(lists.AfB(list, i)),
                                         am ? AmCode(value) : FmCode(value), am};
      if (pair.here != 0 && pair.there != 0) network.pairs.push_back(pair);
    }
    prepared.networks.push_back(std::move(network));
  }

  // A Coder that was never told of a linkage says nothing of one.
  if (ReadIniKey("LI", "Lsn").empty() && ReadIniKey("LI", "La").empty()) return;
  const LiData linkage;
  prepared.linkage = {linkage.La(), linkage.Egi(), linkage.Il(), linkage.Lsn()};
}

std::uint32_t Bits(std::uint32_t before, const std::string& command) {
  for (const char bit : command) before = before << 1 | (bit == '1' ? 1U : 0U);
  return before;
}

void TakeChannels(Prepared& prepared) {
  constexpr std::uint32_t kAddress = 0xFFF;
  const Tdc0Data subchannels;
  // Subchannel 0 has the number of channel 1, which is sent behind it.
  for (std::int16_t i = 1; i < Tdc0Data::MaxSubChannelNum(); ++i) {
    if (!subchannels.Active(i)) continue;
    const auto address = static_cast<std::uint32_t>(subchannels.Address(i)) & kAddress;
    prepared.channels.push_back({0, i, Bits(address, subchannels.Command(i))});
  }
  const TdcData channels;
  for (std::int16_t i = 0; i < TdcData::MaxChannelNum(); ++i) {
    if (channels.Active(i)) prepared.channels.push_back({i + 1, {}, Bits(0, channels.Command(i))});
  }

  const IhData pages;
  for (std::int16_t i = 0; i < pages.PagesCount(); ++i) {
    const std::string text = WithoutBlanksAtEnd(ToCoder(pages.Page(i)));
    std::error_code error;
    const std::filesystem::path own = pages.FullName(i);
    const bool is_there = own.is_absolute() && std::filesystem::is_regular_file(own, error);
    if ((text.empty() && is_there) || text == IhData::NewPage()) continue;
    prepared.pages.push_back({i, text, pages.RotationTime(i)});
  }
}

void TakeTraffic(Prepared& prepared) {
  if (!configData->TmcEnable()) return;
  constexpr int kEventBits = 0x7FF;
  const TmcData data;
  for (std::int16_t i = 0; i < data.MaxListNum(); ++i) {
    const int event = data.Events(i) & kEventBits;
    if (event == 0) continue;
    prepared.traffic_messages.push_back({.row = i,
                                         .event = event,
                                         .location = data.Location(i) & kSixteenBits,
                                         .duration = data.Duration(i) & kThreeBits,
                                         .direction = data.Direction(i),
                                         .extent = data.Extent(i) & kThreeBits,
                                         .diversion = data.Diversion(i)});
  }
  const Prepared::TrafficSystem system{data.Ltn(),      data.Sid(),      data.International(),
                                       data.National(), data.Regional(), data.Urban()};
  // A file that knows of none has zeros.
  const bool scope = system.international || system.national || system.regional || system.urban;
  const bool has_system = scope || system.table != 0 || system.service != 0;
  if (has_system || !prepared.traffic_messages.empty()) prepared.traffic_system = system;
}

void TakeGroups(Prepared& prepared) {
  if (!configData->GroupsEnable()) return;
  const GroupsData sequence;
  prepared.groups.emplace();
  const int travelling = configData->GroupsBEnable() ? kGroups : kGroupNumbers;
  for (int group = 0; group < travelling; ++group) {
    prepared.groups->at(static_cast<std::size_t>(group)) = {sequence.Active(group),
                                                            sequence.Repetitions(group)};
  }
}

// An empty text, or why the file is none of a station.
std::string CannotUse(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return "there is no such file";
  if (!std::filesystem::is_regular_file(path, error)) return "that is no file";
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  if (!file || (file.peek() != std::ifstream::traits_type::eof() && !(text << file.rdbuf()))) {
    return "it can't be read";
  }
  const std::string upper = UpperCase(text.str());
  for (const std::string_view section : {"[PI]", "[RDS SETUP]", "[PSN PAGES]", "[RT]"}) {
    if (upper.find(section) != std::string::npos) return {};
  }
  return "that is no station file";
}

}  // namespace

std::string ReadPrepared(const std::string& path, Prepared& prepared) {
  std::error_code error;
  const auto file = std::filesystem::absolute(path, error).lexically_normal();
  if (const std::string wrong = CannotUse(file); !wrong.empty()) return path + ": " + wrong;
  const QuietMachine machine(file);
  prepared = {};
  prepared.path = file;
  TakeRecord(prepared);
  TakeProgramme(prepared);
  TakeFrequencies(prepared);
  TakeNetworks(prepared);
  TakeChannels(prepared);
  TakeTraffic(prepared);
  TakeGroups(prepared);
  return {};
}

}  // namespace corvalis::radio
