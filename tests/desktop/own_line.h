#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace corvalis::test {

using Bytes = std::vector<std::uint8_t>;

/// A pseudo-terminal whose other end the test itself is.
class OwnLine {
 public:
  OwnLine() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    std::array<char, 64> name{};
    if (grantpt(master_) != 0 || unlockpt(master_) != 0 ||
        ptsname_r(master_, name.data(), name.size()) != 0) {
      throw std::runtime_error("no pseudo-terminal");
    }
    path_ = name.data();
  }
  ~OwnLine() { Unplug(); }
  OwnLine(const OwnLine&) = delete;
  OwnLine& operator=(const OwnLine&) = delete;

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] int Descriptor() const { return master_; }
  void Unplug() {
    if (master_ >= 0) close(std::exchange(master_, -1));
  }
  void Send(const Bytes& bytes) const {
    ASSERT_EQ(write(master_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  }
  [[nodiscard]] Bytes Receive() const {
    std::array<std::uint8_t, 4096> buffer{};
    const ssize_t count = read(master_, buffer.data(), buffer.size());
    return {buffer.begin(), buffer.begin() + std::max<ssize_t>(count, 0)};
  }
  [[nodiscard]] termios Settings() const {
    termios settings{};
    EXPECT_EQ(tcgetattr(master_, &settings), 0);
    return settings;
  }

 private:
  int master_;
  std::string path_;
};

}  // namespace corvalis::test
