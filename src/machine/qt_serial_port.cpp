#include "machine/qt_serial_port.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <optional>
#include <string_view>
#include <utility>

#include "machine/port_names.h"
#include "machine/qt_text.h"
#include "machine/qt_time.h"
#include "platform/platform.h"

namespace corvalis::machine {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr int kLastPort = 4;
constexpr qint64 kInputKept = 1024;
constexpr int kBitsPerByte = 10;
constexpr int kMillisecondsPerSecond = 1000;
constexpr std::chrono::seconds kStuck{5};
constexpr milliseconds kLongestLook{100};

constexpr int kInvalidValue = 380;
constexpr int kNotWhileOpen = 8000;
constexpr int kCannotOpen = 8002;
constexpr int kAlreadyOpen = 8005;

PortError NotOpen() { return {kPortNotOpen, "The port is not open"}; }
PortError InvalidValue(const std::string& what) {
  return {kInvalidValue, "The port has no " + what};
}

struct LineSettings {
  int baud = 0;
  QSerialPort::Parity parity = QSerialPort::NoParity;
  QSerialPort::DataBits data_bits = QSerialPort::Data8;
  QSerialPort::StopBits stop_bits = QSerialPort::OneStop;
};

std::optional<QSerialPort::Parity> ParityOf(std::string_view letter) {
  if (letter == "N") return QSerialPort::NoParity;
  if (letter == "E") return QSerialPort::EvenParity;
  if (letter == "O") return QSerialPort::OddParity;
  return std::nullopt;
}

// Takes the text before the next comma off `rest`.
std::string_view NextField(std::string_view& rest) {
  const std::size_t comma = std::min(rest.find(','), rest.size());
  const std::string_view field = rest.substr(0, comma);
  rest.remove_prefix(std::min(comma + 1, rest.size()));
  return field;
}

int NextNumber(std::string_view& rest) {
  const std::string_view field = NextField(rest);
  int number = 0;
  const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
  return error == std::errc() && end == field.data() + field.size() ? number : -1;
}

std::optional<LineSettings> ParseSettings(std::string_view text) {
  if (text.ends_with(',')) return std::nullopt;
  LineSettings settings;
  settings.baud = NextNumber(text);
  const auto parity = ParityOf(NextField(text));
  const int data_bits = NextNumber(text);
  const int stop_bits = NextNumber(text);
  if (settings.baud <= 0 || !parity || data_bits < QSerialPort::Data5 ||
      data_bits > QSerialPort::Data8 || stop_bits < 1 || stop_bits > 2 || !text.empty()) {
    return std::nullopt;
  }
  settings.parity = *parity;
  settings.data_bits = static_cast<QSerialPort::DataBits>(data_bits);
  settings.stop_bits = stop_bits == 1 ? QSerialPort::OneStop : QSerialPort::TwoStop;
  return settings;
}

}  // namespace

QtSerialPort::QtSerialPort() {
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] { TakeReceived(); });
  QObject::connect(&port_, &QSerialPort::errorOccurred, &port_, [this] { CheckDevice(); });
}

QtSerialPort::~QtSerialPort() { Close(); }

PortError QtSerialPort::SetCommPort(int number) {
  if (PortOpen()) return {kNotWhileOpen, "The port cannot be changed while it is open"};
  if (number < 1 || number > kLastPort) return InvalidValue("number " + std::to_string(number));
  number_ = number;
  return {};
}

PortError QtSerialPort::SetPortOpen(bool open) {
  if (open) return Open();
  Close();
  return {};
}

PortError QtSerialPort::Open() {
  if (PortOpen()) return {kAlreadyOpen, "The port is already open"};
  device_ =
      given_.empty() ? DeviceOfPort(number_, Machine().settings_folder) : DeviceBehind(given_);
  if (const int error = hold_.Take(device_)) {
    return DeviceError(kCannotOpen, qt_error_string(error));
  }
  port_.setPortName(FromFileName(device_));
  if (!port_.open(QIODevice::ReadWrite)) {
    // Whether the device may be opened is settled; what remains are other programs' lock files.
    const bool locked = port_.error() == QSerialPort::PermissionError;
    const QString words = (locked ? qt_error_string(EBUSY) + ": " : "") + port_.errorString();
    hold_.Release();
    return DeviceError(kCannotOpen, words);
  }
  if (PortError error = ApplySettings()) {
    Close();
    return error;
  }
  port_.setRequestToSend(request_to_send_);
  return {};
}

void QtSerialPort::Close() {
  if (port_.isOpen()) port_.close();
  hold_.Release();
}

PortError QtSerialPort::SetSettings(const std::string& settings) {
  if (!ParseSettings(settings)) return InvalidValue("settings \"" + settings + "\"");
  settings_ = settings;
  return PortOpen() ? ApplySettings() : PortError{};
}

PortError QtSerialPort::ApplySettings() {
  const LineSettings settings = ParseSettings(settings_).value();
  if (!port_.setBaudRate(settings.baud) || !port_.setDataBits(settings.data_bits) ||
      !port_.setStopBits(settings.stop_bits)) {
    return DeviceError(kInvalidValue, port_.errorString());
  }
  // Refused where there is no parity.
  port_.setParity(settings.parity);
  return PortOpen() ? PortError{} : NotOpen();
}

PortError QtSerialPort::SetInputLen(int length) {
  if (length < 0) return InvalidValue("input length " + std::to_string(length));
  input_length_ = length;
  return {};
}

PortError QtSerialPort::SetInputMode(int mode) {
  return mode == kInputModeBinary ? PortError{} : InvalidValue("input but binary");
}

PortError QtSerialPort::SetRThreshold(int bytes) {
  if (bytes < 0) return InvalidValue("receive threshold " + std::to_string(bytes));
  threshold_ = bytes;
  return {};
}

PortError QtSerialPort::SetRTSEnable(bool on) {
  request_to_send_ = on;
  // Refused where there are no modem lines.
  if (PortOpen()) port_.setRequestToSend(on);
  return {};
}

int QtSerialPort::InBufferCount() const { return static_cast<int>(port_.bytesAvailable()); }

PortError QtSerialPort::ClearInput() {
  if (!PortOpen()) return NotOpen();
  port_.clear(QSerialPort::Input);
  return {};
}

std::vector<std::uint8_t> QtSerialPort::Input() {
  const QByteArray bytes = input_length_ == 0 ? port_.readAll() : port_.read(input_length_);
  return {bytes.begin(), bytes.end()};
}

PortError QtSerialPort::Output(std::span<const std::uint8_t> bytes) {
  if (!PortOpen()) return NotOpen();
  port_.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  port_.flush();
  return WaitUntilSent() ? PortError{} : NotOpen();
}

int QtSerialPort::Unsent() const { return static_cast<int>(port_.bytesToWrite()) + hold_.Unsent(); }

bool QtSerialPort::WaitUntilSent() {
  int unsent = Unsent();
  auto last_progress = steady_clock::now();
  while (PortOpen() && unsent > 0) {
    // The line says nothing when it has sent its last byte; that moment is known beforehand.
    const milliseconds line_time(1 +
                                 unsent * kBitsPerByte * kMillisecondsPerSecond / port_.baudRate());
    RunEventsFor(std::min(line_time, kLongestLook));
    const int before = std::exchange(unsent, Unsent());
    if (unsent < before) {
      last_progress = steady_clock::now();
    } else if (steady_clock::now() - last_progress > kStuck) {
      if (PortOpen()) port_.clear(QSerialPort::Output);
      return false;
    }
  }
  return PortOpen();
}

void QtSerialPort::TakeReceived() {
  if (threshold_ == 0) {
    const qint64 excess = port_.bytesAvailable() - kInputKept;
    if (excess > 0) port_.skip(excess);
    return;
  }
  if (port_.bytesAvailable() < threshold_) return;
  comm_event_ = kCommEventReceive;
  if (CommEventRaised) CommEventRaised();
}

// Not every error is the end: a line without modem lines is none, nor is one that takes no more
// bytes for the moment.
void QtSerialPort::CheckDevice() {
  if (!port_.isOpen()) return;
  if (hold_.Alive()) {
    port_.setReadBufferSize(0);  // QSerialPort may have stopped reading
  } else {
    Close();
  }
}

PortError QtSerialPort::DeviceError(int number, const QString& words) const {
  const std::string device = ToBytes(FromFileName(device_));
  const std::string name =
      given_.empty() ? "COM " + std::to_string(number_) + " (" + device + ")" : device;
  return {number, name + ": " + ToBytes(words)};
}

}  // namespace corvalis::machine
