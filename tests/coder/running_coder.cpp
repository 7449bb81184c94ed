#include "coder/running_coder.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace corvalis::coder {

namespace {

constexpr int kPatienceMs = 10'000;

// True once there is something to be read, or nothing more will come.
bool AwaitReadable(int descriptor) {
  pollfd polled = {descriptor, POLLIN, 0};
  return poll(&polled, 1, kPatienceMs) > 0;
}

}  // namespace

RunningCoder::RunningCoder(std::vector<std::string> options) {
  std::array<int, 2> in{};
  std::array<int, 2> out{};
  if (pipe2(in.data(), O_CLOEXEC) != 0 || pipe2(out.data(), O_CLOEXEC) != 0) return;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
  options.insert(options.begin(), {CORVALIS_CODER_PROGRAM, "--with-stdin"});
  std::vector<char*> words;
  words.reserve(options.size() + 1);
  for (std::string& option : options) words.push_back(option.data());
  words.push_back(nullptr);
  if (posix_spawn(&pid_, words.front(), &actions, nullptr, words.data(), environ) != 0) pid_ = -1;
  posix_spawn_file_actions_destroy(&actions);
  close(in[0]);
  close(out[1]);
  input_ = in[1];
  output_ = out[0];
  NextLine("ready ");
}

RunningCoder::~RunningCoder() {
  if (pid_ > 0) End();
  close(output_);
}

std::string RunningCoder::NextLine(const std::string& beginning) {
  for (;;) {
    const std::size_t end = held_.find('\n');
    if (end != std::string::npos) {
      std::string line = held_.substr(0, end);
      held_.erase(0, end + 1);
      if (line.starts_with("ready ")) path_ = line.substr(std::string("ready ").size());
      if (line.starts_with(beginning)) return line;
      continue;
    }
    std::array<char, 4096> buffer{};
    if (!AwaitReadable(output_)) return {};
    const ssize_t count = read(output_, buffer.data(), buffer.size());
    if (count <= 0) return {};
    held_.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

int RunningCoder::End() {
  close(input_);
  int status = -1;
  waitpid(std::exchange(pid_, -1), &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

OpenLine::OpenLine(const std::string& path)
    : line_(open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
  Set(B9600, 2);
}

OpenLine::~OpenLine() { close(line_); }

void OpenLine::Set(unsigned speed, int stop_bits) const {
  termios settings{};
  tcgetattr(line_, &settings);
  cfmakeraw(&settings);
  cfsetspeed(&settings, speed);
  if (stop_bits == 2) {
    settings.c_cflag |= CSTOPB;
  } else {
    settings.c_cflag &= ~static_cast<tcflag_t>(CSTOPB);
  }
  tcsetattr(line_, TCSANOW, &settings);
}

void OpenLine::Write(const Bytes& bytes) const {
  // What is not taken shows as an answer that does not come.
  static_cast<void>(!write(line_, bytes.data(), bytes.size()));
}

Bytes OpenLine::Read(std::size_t count) const {
  Bytes bytes(count);
  std::size_t have = 0;
  while (have < count && AwaitReadable(line_)) {
    const ssize_t more = read(line_, bytes.data() + have, count - have);
    if (more <= 0) break;
    have += static_cast<std::size_t>(more);
  }
  bytes.resize(have);
  return bytes;
}

bool OpenLine::Gone() const {
  pollfd polled = {line_, 0, 0};
  return poll(&polled, 1, kPatienceMs) > 0 && (polled.revents & POLLHUP) != 0;
}

}  // namespace corvalis::coder
