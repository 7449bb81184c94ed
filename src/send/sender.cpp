#include "send/sender.h"

#include <algorithm>

#include "app/configuration.h"
#include "link/list_commands.h"
#include "link/serial_management.h"
#include "link/station_commands.h"
#include "link/transfer.h"
#include "networks/tmc_data.h"
#include "platform/platform.h"
#include "programme/af_a_data.h"
#include "send/reading.h"

namespace corvalis::send {

namespace {

constexpr std::int16_t kErrorUnaddressed = 8;
constexpr int kTriesToEndTa = 3;
constexpr const char* kModem =
    "the station is reached through a modem, and a call is only made by hand in the program";

std::uint8_t Byte(int value) { return static_cast<std::uint8_t>(value); }
std::int16_t Short(int value) { return static_cast<std::int16_t>(value); }

// How a command is repeated on a one-way link: as the program's own bursts of the same item.
struct Burst {
  int passes;
  float pause = 0;  // seconds after each
};

Burst BurstOf(Item item) {
  constexpr float kPause = 0.2F;
  if (!configData->Satellite() || item == Item::kCt) return {1};
  const int passes = configData->Burst();
  switch (item) {
    case Item::kPtyn:
    case Item::kEonTa:
    case Item::kTmc:
      return {passes + 1, kPause};
    case Item::kTp:
      return {passes + 1};
    default:
      return {passes};
  }
}

void TakePresentTime() {
  const DateTime now = Machine().clock->Now();
  configData->SetDateValue(now);
  configData->SetDayOfWeek(Short(WeekdayFromMonday(now)));
}

void SendMessage(const Command& command) {
  const std::int16_t row = Short(command.number);
  TmcData sent = Station::Messages();
  sent.SetLocation(row, command.tmc.location);
  sent.SetEvents(row, Short(command.tmc.event));
  sent.SetDuration(row, Byte(command.tmc.duration));
  sent.SetDirection(row, command.tmc.direction);
  sent.SetExtent(row, Byte(command.tmc.extent));
  sent.SetDiversion(row, command.tmc.diversion);
  sent.SetRepetition(row, Byte(command.tmc.repetition));
  sent.SetOneRds(row);
}

void SendFrame(const std::vector<std::uint8_t>& bytes) {
  const auto code = static_cast<CommandCode>(bytes[0]);
  Frame frame = Frame::Write(code, bytes[1], bytes.size() - 2);
  std::copy(bytes.begin() + 2, bytes.end(), frame.Body().begin());
  WriteToCoder(frame, "raw");
  // The Coder may have another identity now.
  if (code == CommandCode::kAddress) LineOwner::Doubt();
}

}  // namespace

std::string Sender::Impossible(const Command& command) const {
  if (configData->Modem()) return kModem;
  if (command.read && configData->Satellite()) {
    return "the station is reached over a one-way link: nothing can be read";
  }
  if (command.read && dry_) return "without a line nothing can be read";
  if (command.item == Item::kTmc && command.number >= Station::Messages().MaxListNum()) {
    return "the station has traffic messages 0 to " +
           std::to_string(Station::Messages().MaxListNum() - 1);
  }
  return {};
}

Outcome Sender::Send(const Command& command) {
  if (std::string why = Impossible(command); !why.empty()) {
    return {.kind = Outcome::Kind::kUnfit, .words = std::move(why)};
  }
  Outcome outcome;
  for (int tries = command.EndsTa() ? kTriesToEndTa : 1; tries > 0; --tries) {
    outcome = Try(command);
    if (outcome.kind != Outcome::Kind::kFailed || outcome.error == kErrorAborted) break;
    if (!StaysRefused(outcome.error)) LineOwner::Doubt();
  }
  return outcome;
}

Outcome Sender::SendBetween(const Command& command) { return RunAddressed(command); }

Outcome Sender::MakeReady() {
  dialogs_.Take();
  if (configData->Modem()) return {.kind = Outcome::Kind::kUnfit, .words = kModem};
  switch (line_.MakeReady()) {
    case LineOwner::State::kReady:
      return {};
    case LineOwner::State::kNoLine:
      return Failure(Outcome::Kind::kNoLine);
    case LineOwner::State::kFailed:
      break;
  }
  return Failure(Outcome::Kind::kFailed);
}

Outcome Sender::Try(const Command& command) {
  Outcome ready = MakeReady();
  return ready.kind == Outcome::Kind::kDone ? RunAddressed(command) : ready;
}

Outcome Sender::RunAddressed(const Command& command) {
  Outcome outcome;
  Run(command, outcome);
  // Somebody has sent an ENQ, or the Coder has lost its supply meanwhile.
  if (LinkError == kErrorUnaddressed && line_.Address()) {
    outcome = {};
    Run(command, outcome);
  }
  return LinkError == kLinkOk ? outcome : Failure(Outcome::Kind::kFailed);
}

Outcome Sender::Failure(Outcome::Kind kind) {
  Outcome outcome{.kind = kind, .error = LinkError, .words = dialogs_.Take()};
  if (outcome.words.empty()) outcome.words = "stopped before it was done";
  return outcome;
}

void Sender::Run(const Command& command, Outcome& outcome) {
  LinkError = kLinkOk;
  if (command.item == Item::kList) {
    station_.Select(command.lists);
    if (command.read) {
      ReadLists(outcome);
    } else {
      SendLists(command);
    }
    station_.Unselect();
  } else if (command.read) {
    ReadOne(command, outcome);
  } else {
    const Burst burst = BurstOf(command.item);
    RunItems(
        burst.passes, [&](int /*pass*/) { Write(command); }, burst.pause);
  }
}

void Sender::Write(const Command& command) {
  const std::uint8_t number = Byte(command.number);
  const std::uint8_t page = Byte(command.page);
  switch (command.item) {
    case Item::kRt:
      return SendRt(number, Byte(command.time.value_or(Station::TimeOfText(number))), command.text);
    case Item::kPs:
    case Item::kPsPage: {
      const std::uint8_t time = Byte(command.time.value_or(Station::TimeOfName(page, number)));
      // Where there are pages, the names without a page are those of the first.
      if (command.item == Item::kPsPage || configData->PsnPagesEnable()) {
        return SendPsnPage(page, number, time, command.text);
      }
      return SendPsn(number, time, command.text);
    }
    case Item::kPage:
      return SendPsnPageActive(Byte(command.value));
    case Item::kTa:
      return SendTa(command.on);
    case Item::kTp:
      return SendTp(command.on);
    case Item::kPty:
      return SendPty(Short(command.value));
    case Item::kMs:
      return SendMs(command.on);
    case Item::kPtyn:
      return SendPtyn(command.text, number);
    case Item::kCt:
      TakePresentTime();
      return configData->SetCtRds();
    case Item::kEonTa:
      return SendEonTa(number, command.on);
    case Item::kTmc:
      return SendMessage(command);
    case Item::kRaw:
      return SendFrame(command.frame);
    case Item::kList:
      return;
  }
}

void Sender::SendLists(const Command& command) {
  const bool one_way = configData->Satellite();
  station_.LoadLists(!one_way && !dry_);
  TakePresentTime();
  const auto run = one_way ? ConfigurationRun::kBurst : ConfigurationRun::kSend;
  const bool empties =
      configData->PresetAf() && configData->AfMethodA() && !afAData->OtherListsCleared();
  if (empties && Note) {
    const ConfigurationLoad load = LoadOfConfiguration(run);
    Note(command.line + ": empties the other lists of frequencies on the Coder first, " +
         AboutInWords(load.seconds) + " in all");
  }
  if (one_way) {
    BurstConfiguration();
  } else {
    RunConfiguration(run);
  }
}

void Sender::ReadLists(Outcome& outcome) {
  station_.LoadLists(true);
  RunConfiguration(ConfigurationRun::kRead);
  if (LinkError == kLinkOk) {
    outcome.read = Utf8From1252(station_.ListsAsFile());
    if (outcome.read.ends_with('\n')) outcome.read.pop_back();
    outcome.values = {{"file", outcome.read}};
  }
  station_.ReloadLists();
}

}  // namespace corvalis::send
