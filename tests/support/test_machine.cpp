#include "support/test_machine.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "config/config_data.h"
#include "config/language_data.h"
#include "link/serial_management.h"

namespace corvalis::test {

namespace {

constexpr double kDay = 86400;
constexpr double kJustPast = 1e-6;

}  // namespace

double JumpingTime::Timer() const { return std::fmod(now_, kDay); }

DateTime JumpingTime::Now() const {
  using namespace std::chrono;
  return local_days{2026y / November / 15} + seconds(static_cast<long>(now_));
}

void JumpingTime::JumpTo(double steady) {
  now_ += steady - steady_;
  steady_ = steady;
}

void JumpingTime::After(double seconds, std::function<void()> event) {
  schedule_.emplace(steady_ + seconds, std::move(event));
}

bool JumpingTime::RunDue() {
  const double now = steady_;
  bool ran = false;
  while (!schedule_.empty() && schedule_.begin()->first <= now) {
    const auto event = std::move(schedule_.begin()->second);
    schedule_.erase(schedule_.begin());
    event();
    ran = true;
  }
  return ran;
}

void JumpingTime::RunPending() { RunDue(); }

void JumpingTime::RunUntil(double deadline) {
  if (RunDue() || steady_ > deadline) return;
  if (!schedule_.empty() && schedule_.begin()->first <= deadline) {
    JumpTo(schedule_.begin()->first);
    RunDue();
  } else if (std::isinf(deadline)) {
    throw std::logic_error("this wait would never end");
  } else {
    JumpTo(deadline + kJustPast);
  }
}

PortError MemoryPort::Do(const std::string& operation) {
  operations.push_back(operation);
  if (operation == refused) return {380, "invalid property value"};
  return {};
}

PortError MemoryPort::SetCommPort(int number) {
  if (open_) return {8000, "operation not valid while the port is opened"};
  number_ = number;
  return Do("CommPort " + std::to_string(number));
}

PortError MemoryPort::SetPortOpen(bool open) {
  if (open) {
    if (open_) return {8005, "port already open"};
    const auto error = missing.find(number_);
    if (error != missing.end()) return {8002, error->second};
  }
  open_ = open;
  return Do(open ? "PortOpen on" : "PortOpen off");
}

PortError MemoryPort::SetSettings(const std::string& settings) {
  settings_ = settings;
  return Do("Settings " + settings);
}

PortError MemoryPort::SetInputLen(int length) { return Do("InputLen " + std::to_string(length)); }

PortError MemoryPort::SetInputMode(int mode) { return Do("InputMode " + std::to_string(mode)); }

PortError MemoryPort::SetRThreshold(int bytes) {
  threshold_ = bytes;
  return Do("RThreshold " + std::to_string(bytes));
}

PortError MemoryPort::SetRTSEnable(bool on) { return Do(on ? "RTSEnable on" : "RTSEnable off"); }

PortError MemoryPort::ClearInput() {
  input_.clear();
  return Do("ClearInput");
}

std::vector<std::uint8_t> MemoryPort::Input() { return std::exchange(input_, {}); }

PortError MemoryPort::Output(std::span<const std::uint8_t> bytes) {
  if (!open_) return {kPortNotOpen, "operation valid only when the port is open"};
  static_cast<void>(Do("Output " + std::to_string(bytes.size())));
  if (output_error) return std::exchange(output_error, {});
  written.emplace_back(bytes.begin(), bytes.end());
  if (heard_on && !heard_on(number_, settings_)) {
    // The bytes are lost.
  } else if (answer) {
    const Bytes answered = answer(written.back());
    if (!answered.empty()) time_.After(0, [this, answered] { Receive(answered); });
  } else if (line != nullptr) {
    const auto schedule = [this](const std::vector<coder::Line::Answer>& answers) {
      for (const auto& one : answers) {
        time_.After(one.delay_seconds, [this, all = one.bytes] { Receive(all); });
      }
    };
    schedule(line->Take(bytes));
    schedule(line->LinePause());
    if (line->Unplugged()) open_ = false;
  }
  if (Wrote) Wrote();
  return {};
}

void MemoryPort::Receive(const Bytes& bytes, int event) {
  if (!open_) return;
  input_.insert(input_.end(), bytes.begin(), bytes.end());
  if (threshold_ == 0) return;
  comm_event_ = event;
  if (CommEventRaised) CommEventRaised();
}

MachineTest::MachineTest() {
  std::string name = (std::filesystem::temp_directory_path() / "corvalis-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder = name;
  machine.clock = &time;
  machine.pump = &time;
  machine.dialogs = &dialogs;
  machine.profiles = &profiles;
  machine.port = &port;
  machine.program_folder = folder + "/program";
  machine.settings_folder = folder + "/settings";
  std::filesystem::create_directories(machine.program_folder);
  std::filesystem::create_directories(machine.settings_folder);
  InstallPlatform(&machine);
  LinkError = kLinkOk;
  LinkOpen = false;
  AddressSent = false;
  EscPressed = false;
  AutoSettingActive = false;
  ReleaseLink();
}

MachineTest::~MachineTest() {
  InstallPlatform(nullptr);
  std::error_code error;
  std::filesystem::remove_all(folder, error);
}

void MachineTest::WriteFile(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

std::string MachineTest::ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void LinkTest::Start(const std::string& file, coder::Faults faults, bool open) {
  WriteFile(ProgramFile(), file);
  the_coder = std::make_unique<coder::Coder>("?????", open);
  line = std::make_unique<coder::Line>(*the_coder, faults);
  port.line = line.get();
  configData = new ConfigData;
  languageData = new LanguageData;
  port.CommEventRaised = OnComm;
}

void LinkTest::Open() { OpenLink(port); }

LinkTest::~LinkTest() {
  ReleaseLink();
  delete std::exchange(configData, nullptr);
  delete std::exchange(languageData, nullptr);
}

Bytes Hex(const std::string& text) {
  std::istringstream in(text);
  Bytes bytes;
  for (unsigned byte = 0; in >> std::hex >> byte;) bytes.push_back(static_cast<std::uint8_t>(byte));
  return bytes;
}

}  // namespace corvalis::test
