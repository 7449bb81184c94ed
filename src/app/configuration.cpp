#include "app/configuration.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>

#include "config/words.h"
#include "link/command_table.h"
#include "link/link_error.h"
#include "link/list_commands.h"
#include "link/run_progress.h"
#include "link/serial_management.h"
#include "link/transfer.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "networks/li_data.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "networks/tmc_data.h"
#include "platform/platform.h"
#include "programme/af_a_data.h"
#include "programme/af_b_data.h"
#include "programme/pin_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/ptyn_data.h"
#include "programme/rt_data.h"

namespace corvalis {

namespace {

std::int16_t Index(int item) { return static_cast<std::int16_t>(item); }
std::uint8_t Place(int item) { return static_cast<std::uint8_t>(item); }

int One() { return 1; }

bool MethodA() { return configData->AfMethodA(); }
bool MethodB() { return !configData->AfMethodA(); }

// The kinds of items behind the names, one after the other: the first failure ends the rest.
struct Step {
  PresetFlag flag;
  const char* what;  // with the number of them in it, if they are counted
  CommandCode code;
  int (*count)();
  void (*read)(int item);
  void (*send)(int item);       // null: only read
  bool (*offered)() = nullptr;  // null: always
};

const Step kSteps[] = {
    {&ConfigData::PresetRt, LaterWord("%1 radio texts"), CommandCode::kRt,
     [] { return int{rtData->MaxRtNum()}; }, [](int item) { rtData->GetOneRds(Index(item)); },
     [](int item) { rtData->SetOneRds(Index(item)); }},
    {&ConfigData::PresetPin, LaterWord("%1 programme items"), CommandCode::kPin,
     [] { return int{pinData->MaxPinNum()}; }, [](int item) { pinData->GetOneRds(Index(item)); },
     [](int item) { pinData->SetOneRds(Index(item)); }},
    {&ConfigData::PresetAf, LaterWord("the list of method A"), CommandCode::kAf, One,
     [](int /*item*/) { afAData->GetOneRds(); }, [](int /*item*/) { afAData->SetOneRds(); },
     MethodA},
    {&ConfigData::PresetAf, LaterWord("%1 lists of method B"), CommandCode::kAf,
     [] { return int{afBData->MaxAfBListNum()}; },
     [](int item) { afBData->GetOneRds(Index(item)); },
     [](int item) { afBData->SetOneRds(Index(item)); }, MethodB},
    {&ConfigData::PresetTdc, LaterWord("%1 subchannels"), CommandCode::kTdc,
     [] { return int{tdc0Data->MaxSubChannelNum()}; },
     [](int item) { tdc0Data->GetOneRds(Index(item)); },
     [](int item) { tdc0Data->SendOneRds(Index(item)); }},
    {&ConfigData::PresetTdc, LaterWord("%1 channels"), CommandCode::kTdc,
     [] { return int{tdcData->MaxChannelNum()}; },
     [](int item) { tdcData->GetOneRds(Index(item)); },
     [](int item) { tdcData->SendOneRds(Index(item)); }},
    {&ConfigData::PresetIh, LaterWord("%1 in-house pages, which are only read"), CommandCode::kIh,
     [] { return int{ihData->PagesCount()}; }, [](int item) { ihData->GetOneRds(Index(item)); },
     nullptr},
    {&ConfigData::PresetPi, LaterWord("the PI code"), CommandCode::kPi, One,
     [](int /*item*/) { configData->GetPiRds(); }, [](int /*item*/) { configData->SetPiRds(); }},
    {&ConfigData::PresetCt, LaterWord("date, time and offset"), CommandCode::kCt, One,
     [](int /*item*/) { configData->GetCtRds(); }, [](int /*item*/) { configData->SetCtRds(); }},
    {&ConfigData::PresetTp, LaterWord("the traffic programme flag"), CommandCode::kTp, One,
     [](int /*item*/) { configData->GetTpRds(); }, [](int /*item*/) { configData->SetTpRds(); }},
    {&ConfigData::PresetDi, LaterWord("the decoder flags"), CommandCode::kDi, One,
     [](int /*item*/) { configData->GetDiRds(); }, [](int /*item*/) { configData->SetDiRds(); }},
    {&ConfigData::PresetEcc, LaterWord("the country code"), CommandCode::kEcc, One,
     [](int /*item*/) { configData->GetEccRds(); }, [](int /*item*/) { configData->SetEccRds(); }},
    {&ConfigData::PresetLic, LaterWord("the language code"), CommandCode::kLic, One,
     [](int /*item*/) { configData->GetLicRds(); }, [](int /*item*/) { configData->SetLicRds(); }},
    {&ConfigData::PresetLi, LaterWord("the linkage information"), CommandCode::kLi, One,
     [](int /*item*/) { liData->GetOneRds(); }, [](int /*item*/) { liData->SetOneRds(); }},
    {&ConfigData::PresetEon, LaterWord("%1 lists of other networks"), CommandCode::kEon,
     [] { return int{eonData->MaxListNum()}; }, [](int item) { eonData->GetOneRds(Index(item)); },
     [](int item) { eonData->SetOneRds(Index(item)); }},
    {&ConfigData::PresetPtyn, LaterWord("%1 programme type names"), CommandCode::kPtyn,
     [] { return PtynData::MaxPtyList() + 1; }, [](int item) { ptynData->GetOneRds(Place(item)); },
     [](int item) { ptynData->SetOneRds(Place(item)); }},
    {&ConfigData::PresetTmc, LaterWord("the TMC system"), CommandCode::kTmcSystem, One,
     [](int /*item*/) { tmcData->GetOneSystemRds(); },
     [](int /*item*/) { tmcData->SetOneSystemRds(); }},
    {&ConfigData::PresetTmc, LaterWord("%1 traffic messages"), CommandCode::kTmc,
     [] { return int{tmcData->MaxListNum()}; }, [](int item) { tmcData->GetOneRds(Index(item)); },
     [](int item) { tmcData->SetOneRds(Index(item)); }}};

bool Offered(const Step& step) { return step.offered == nullptr || step.offered(); }

bool Travels(const Step& step, ConfigurationRun run) {
  return (configData->*step.flag)() && Offered(step) &&
         (run == ConfigurationRun::kRead || step.send != nullptr);
}

// With pages alone. A burst takes the plan along whether it is in use or not. That is meant.
bool PlanTravels(ConfigurationRun run) {
  return run == ConfigurationRun::kBurst || configData->PsnPlanEnable();
}

// The lists that method A leaves to none, as many as there are without it.
int OtherLists() {
  return (configData->Satellite() ? AfAData::kMostLists : afBData->MaxAfBListNum()) - 1;
}

// The lists that a step empties before it sends.
int Clearing(const Step& step, ConfigurationRun run) {
  const bool clears = step.offered == MethodA && run != ConfigurationRun::kRead;
  return clears && !afAData->OtherListsCleared() ? OtherLists() : 0;
}

int PassesOfBurst() { return configData->Burst() + 1; }

// What the items of a run cost on the line.
class Meter {
 public:
  explicit Meter(ConfigurationRun run) : read_(run == ConfigurationRun::kRead) {
    if (run == ConfigurationRun::kBurst) load_.passes = PassesOfBurst();
  }

  void Add(CommandCode code, int items) {
    load_.items += items;
    pass_seconds_ += items * (code == CommandCode::kIh ? Page() : Seconds(Bytes(code)));
  }
  // The lists that the first sending of method A empties.
  void AddClearing(int lists) {
    constexpr double kPause = 0.2;
    load_.seconds += lists * (Seconds(Bytes(CommandCode::kAf)) + kPause);
  }

  [[nodiscard]] ConfigurationLoad Load() const {
    ConfigurationLoad load = load_;
    load.seconds += load.passes * pass_seconds_;
    return load;
  }
  // Of what has been added, passes aside.
  [[nodiscard]] int Items() const { return load_.items; }
  [[nodiscard]] double Seconds() const { return load_.seconds + pass_seconds_; }

 private:
  static constexpr int kAcknowledgement = 1;
  static int Frame(CommandCode code) { return static_cast<int>(FrameSize(code)); }

  [[nodiscard]] int Bytes(CommandCode code) const {
    if (!read_) return Frame(code) + (configData->Satellite() ? 0 : kAcknowledgement);
    // The number of some items has two parts.
    const bool in_parts = code == CommandCode::kPin || code == CommandCode::kPsnPage;
    return (in_parts ? 6 : 5) + kAcknowledgement + Frame(code);
  }

  // Every block of a page is asked for alone, and so is its end.
  static double Page() {
    constexpr int kBlockRequest = 8;
    constexpr int kEnd = kIhShortLastIndex + 1;
    constexpr double kPause = 0.2;
    return Seconds(kIhBlocks * (kBlockRequest + kAcknowledgement + Frame(CommandCode::kIh)) + kEnd +
                   kAcknowledgement + kEnd) +
           kIhBlocks * kPause;
  }

  static double Seconds(int bytes) {
    const int baud = configData->Baudrate();
    if (baud <= 0) return 0;
    constexpr int kStartAndData = 9;
    const int bits = kStartAndData + (configData->Parity() == "N" ? 0 : 1) + configData->StopBit();
    return static_cast<double>(bytes) * bits / baud;
  }

  bool read_;
  ConfigurationLoad load_;
  double pass_seconds_ = 0;
};

// How far a run is: its items, and the time that is left by what the line has made of its plan.
class Progress {
 public:
  explicit Progress(ConfigurationRun run)
      : run_(run), all_(LoadOfConfiguration(run)), done_(run), whole_([this] { return Words(); }) {}

  [[nodiscard]] ConfigurationRun Run() const { return run_; }
  // What is over.
  void Add(CommandCode code, int items) { done_.Add(code, items); }
  void AddClearing(int lists) { done_.AddClearing(lists); }

 private:
  [[nodiscard]] std::string Words() const {
    const int all = all_.items * all_.passes;
    if (all < 2) return {};
    double left = all_.seconds - done_.Seconds();
    if (done_.Seconds() > 0) left *= (Machine().clock->Steady() - begin_) / done_.Seconds();
    return Word("%1 of %2, %3 left", {std::to_string(std::min(done_.Items() + 1, all)),
                                      std::to_string(all), AboutInWords(left)});
  }

  ConfigurationRun run_;
  ConfigurationLoad all_;
  Meter done_;
  double begin_ = Machine().clock->Steady();
  RunWhole whole_;
};

// The items of a list, read or sent as the run goes.
void RunList(Progress& progress, CommandCode code, int count, const std::function<void(int)>& read,
             const std::function<void(int)>& send) {
  const auto& work = progress.Run() == ConfigurationRun::kRead ? read : send;
  int left = count;
  RunItems(count, [&](int item) {
    work(item);
    progress.Add(code, 1);
    --left;
  });
  progress.Add(code, left);  // what a failure has left out is over too
}

void RunPage(Progress& progress, std::uint8_t page) {
  RunList(
      progress, CommandCode::kPsnPage, psnPageData->MaxPsnNum(),
      [page](int row) { psnPageData->GetOneRds(page, Index(row)); },
      [page](int row) { psnPageData->SetOneRds(page, Index(row)); });
}

// The pages go on where others end. A page that could not be sent ends alone: the next one starts
// all the same. A page that could not be read ends the pages. The plan starts in either case, and
// as each frame says anew how the link is, it and what follows go on as far as they succeed. Only
// the operator's abort ends them all. All of that is meant.
void RunPages(Progress& progress) {
  for (int page = 0; page < psnPageData->MaxPsnPageNum(); ++page) {
    RunPage(progress, Place(page));
    if (LinkError == kErrorAborted) return;
    if (LinkError != kLinkOk && progress.Run() == ConfigurationRun::kRead) {
      const int left = psnPageData->MaxPsnPageNum() - page - 1;
      progress.Add(CommandCode::kPsnPage, left * psnPageData->MaxPsnNum());  // over too
      break;
    }
  }
  if (!PlanTravels(progress.Run())) return;
  RunList(
      progress, CommandCode::kPsnPlan, psnPageData->MaxPsnPlanNum(),
      [](int row) { psnPageData->GetOneRdsPlan(Index(row)); },
      [](int row) { psnPageData->SetOneRdsPlan(Index(row)); });
}

void RunNames(Progress& progress) {
  if (configData->PsnPagesEnable()) return RunPages(progress);
  RunList(
      progress, CommandCode::kPsn, psnData->MaxPsnNum(),
      [](int row) { psnData->GetOneRds(Index(row)); },
      [](int row) { psnData->SetOneRds(Index(row)); });
}

void TakePresentTime() {
  const DateTime now = Machine().clock->Now();
  configData->SetDateValue(now);
  configData->SetDayOfWeek(static_cast<std::int16_t>(WeekdayFromMonday(now)));
}

std::string Names() {
  const std::string names = std::to_string(psnData->MaxPsnNum());
  if (!configData->PsnPagesEnable()) return Word("%1 names", {names});
  std::string text =
      Word("%1 pages of %2 names", {std::to_string(psnPageData->MaxPsnPageNum()), names});
  const std::string plan = std::to_string(psnPageData->MaxPsnPlanNum());
  if (PlanTravels(ConfigurationRun::kSend)) {
    text += ", " + Word("%1 rows of the plan", {plan});
  } else if (configData->Satellite()) {
    text += ", " + Word("in a burst %1 rows of the plan", {plan});
  }
  return text;
}

void RunPass(Progress& progress) {
  const ConfigurationRun run = progress.Run();
  LinkError = kLinkOk;
  if (configData->PresetPsn()) RunNames(progress);
  for (const Step& step : kSteps) {
    if (LinkError != kLinkOk) return;
    if (!Travels(step, run)) continue;
    if (step.code == CommandCode::kCt && run == ConfigurationRun::kSend) TakePresentTime();
    const int clearing = Clearing(step, run);
    RunList(progress, step.code, step.count(), step.read, step.send);
    progress.AddClearing(clearing);
  }
}

}  // namespace

void RunConfiguration(ConfigurationRun run) {
  Progress progress(run);
  RunPass(progress);
}

ConfigurationLoad LoadOfConfiguration(ConfigurationRun run) {
  Meter meter(run);
  if (configData->PresetPsn() && configData->PsnPagesEnable()) {
    meter.Add(CommandCode::kPsnPage, psnPageData->MaxPsnPageNum() * psnPageData->MaxPsnNum());
    if (PlanTravels(run)) meter.Add(CommandCode::kPsnPlan, psnPageData->MaxPsnPlanNum());
  } else if (configData->PresetPsn()) {
    meter.Add(CommandCode::kPsn, psnData->MaxPsnNum());
  }
  for (const Step& step : kSteps) {
    if (!Travels(step, run)) continue;
    meter.Add(step.code, step.count());
    meter.AddClearing(Clearing(step, run));
  }
  return meter.Load();
}

void BurstConfiguration() {
  Progress progress(ConfigurationRun::kBurst);
  for (int pass = 0; pass < PassesOfBurst(); ++pass) {
    RunPass(progress);
    if (LinkError != kLinkOk) return;
  }
}

std::string TravelsWith(PresetFlag flag) {
  if (flag == &ConfigData::PresetPsn) return Names();
  std::string text;
  for (const Step& step : kSteps) {
    if (step.flag != flag || !Offered(step)) continue;
    if (!text.empty()) text += ", ";
    text += Word(step.what, {std::to_string(step.count())});
  }
  return text;
}

std::string AboutInWords(double seconds) {
  const auto round = [seconds](int unit) {
    return static_cast<int>(std::ceil(seconds / unit)) * unit;
  };
  if (seconds <= 1) return Word("about a second");
  if (seconds <= 20) return Word("about %1 seconds", {std::to_string(round(1))});
  if (seconds <= 100) return Word("about %1 seconds", {std::to_string(round(10))});
  return Word("about %1 minutes", {std::to_string(std::lround(seconds / 60))});
}

}  // namespace corvalis
